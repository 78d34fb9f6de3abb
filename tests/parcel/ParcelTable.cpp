#include "tests/parcel/ParcelTable.h"

#include "parcel/CallState.h"
#include "platform/afx/AfxApp.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"
#include "platform/user/WindowManager.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// The module's resources in the test program.
const HINSTANCE TestModuleHandle = reinterpret_cast<HINSTANCE>(0x7e57);

} // namespace

ParcelTable::ParcelTable() {
    plat::Headless();
    // Each test runs in a process of its own, maybe beside the others.
    folder = testing::TempDir() + "parcel-table-" + std::to_string(::getpid()) + "/";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    ModulePath = folder + "kervgrid.so";
    session = std::make_unique<host::Host>(events, *host::Drawing::At(folder + "plan.dwg"));
    auto hostHook = plat::WindowManager::Get().onEvent;
    plat::WindowManager::Get().onEvent = [this, hostHook](const std::string& kind,
                                                          const std::string& text) {
        hostHook(kind, text);
        if (kind != "msgbox") return;
        // The box runs its loop next, and takes these keys from the queue.
        if (answerOk) plat::PushKey(VK_TAB, true);
        plat::PushKey(VK_RETURN);
    };
    AfxSetResourceHandle(TestModuleHandle);
    ParcelDialog::RegisterTemplate(TestModuleHandle);
    dialog = std::make_unique<ParcelDialog>();
    grid = &dialog->grid;
    ActiveDialog = dialog.get();
}

ParcelTable::~ParcelTable() {
    ActiveDialog = nullptr;
    dialog.reset();
    session.reset();
    AfxSetResourceHandle(nullptr);
    std::filesystem::remove_all(folder);
}

void ParcelTable::Stock(const std::vector<std::pair<std::string, int>>& layers, std::string types) {
    for (const auto& [name, count] : layers) {
        grid->Layers.Add(name);
        grid->Counts.Add(name == "*" ? "" : std::to_string(count));
    }
    grid->TypeChoices = std::move(types);
    grid->MarkUsedLayers();
}

void ParcelTable::Open() {
    ASSERT_TRUE(dialog->Create());
    dialog->ShowWindow(SW_SHOW);
    Pump();
}

void ParcelTable::Pump() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

std::vector<std::string> ParcelTable::Table() {
    std::vector<std::string> rows;
    for (int r = 0; r < grid->GetRowCount(); ++r)
        rows.push_back(grid->CellText(0, r) + "|" + grid->CellText(1, r) + "|" +
                       grid->CellText(2, r) + "|" + grid->CellText(3, r));
    return rows;
}

void ParcelTable::Click(int col, int row) {
    // The press activates the view first, which ends an edit that runs.
    if (CWnd::GetFocus() == &grid->NumberEditor) grid->GetCellView()->SetFocus();
    grid->GotoCell(col, row);
    grid->NotifyCellLeftMouse(col, row, 1, nullptr, nullptr, 0);
    grid->NotifyCellLeftMouse(col, row, 0, nullptr, nullptr, 0);
    Pump();
}

void ParcelTable::Pick(int row, const std::string& layer) {
    Click(0, row);
    GridCell cell;
    grid->GetCell(0, row, cell);
    cell.SetText(layer);
    grid->SetCell(0, row, cell);
    Pump();
}

void ParcelTable::TypeNumber(int row, const std::string& digits) {
    Click(3, row);
    for (char c : digits) plat::PushChar(c);
    plat::PushKey(VK_RETURN);
    Pump();
}

std::vector<std::string> ParcelTable::TakeEvents() {
    std::vector<std::string> lines;
    std::istringstream in(transcript.str());
    for (std::string line; std::getline(in, line);)
        if (line.starts_with(";; alert: ") || line.starts_with(";; msgbox: "))
            lines.push_back(line.substr(3));
    transcript.str("");
    return lines;
}

bool ParcelTable::DeleteRowEnabled() const {
    return dialog->GetDlgItem(ParcelGrid::DeleteRowButton)->IsWindowEnabled();
}
