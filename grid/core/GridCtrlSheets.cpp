#include "grid/core/GridCtrl.h"
#include "grid/windows/CornerButton.h"
#include "grid/windows/GridHScroll.h"
#include "grid/windows/GridVScroll.h"
#include "grid/windows/GridView.h"
#include "grid/windows/SheetTabs.h"
#include "grid/windows/SideHeading.h"
#include "grid/windows/TopHeading.h"

int GridCtrl::SetSheetCount(int count) {
    if (count < 1 || count > 1024) return 1;
    GridSheet* active = sheet;
    const int activeStripWidth = active ? active->tabStripWidth : 0;
    const bool activeGone = active && sheetIndex >= count;
    if (count < sheetCount) sheets.resize(static_cast<size_t>(count));
    // A new sheet is the active one while its handler runs, so that the handler can set it up
    // with the ordinary operations.
    for (int index = sheetCount; index < count; ++index) {
        auto added = std::make_unique<GridSheet>();
        added->selection->grid = this;
        added->selection->sheet = added.get();
        added->memoryDataSource.grid = this;
        added->cellEditor = &builtInEditor;
        sheet = added.get();
        sheets.push_back(std::move(added));
        NotifySheetCreated(index);
    }
    sheetCount = count;
    if (!activeGone) {
        sheet = active ? active : sheets[0].get();
        return 0;
    }
    // The strip keeps the width it had on the sheet that went.
    sheet = sheets[static_cast<size_t>(count - 1)].get();
    sheet->tabStripWidth = activeStripWidth;
    GiveChildrenSheet();
    SelectSheet(count - 1, 1);
    return 0;
}

int GridCtrl::SelectSheet(int index, int update) {
    if (index < 0 || index >= sheetCount) return 1;
    const int updates = updatesEnabled;
    if (!update) updatesEnabled = 0;
    if (view->m_hWnd) view->SetFocus();
    const int stripWidth = sheet->tabStripWidth;
    sheet = sheets[static_cast<size_t>(index)].get();
    sheet->tabStripWidth = stripWidth;
    GiveChildrenSheet();
    sheetIndex = index;
    sheet->previousTopRow = -1;
    sheet->previousLeftCol = -1;
    RecalcLayout();
    updatesEnabled = updates;
    return 0;
}

int GridCtrl::SetTabStripWidth(int width) {
    sheet->tabStripWidth = width;
    return 0;
}

int GridCtrl::AddTab(const std::string& text, int id) {
    return tabs->AddTab(text, id);
}

int GridCtrl::InsertTab(int position, const std::string& text, int id) {
    return tabs->InsertTab(position, text, id);
}

int GridCtrl::DeleteTab(int id) {
    return tabs->DeleteTab(id);
}

int GridCtrl::SelectTab(int id) {
    if (!tabs->SelectTab(id)) return 1;
    NotifyTabSelected(id);
    return 0;
}

int GridCtrl::GetCurrentTab() const {
    return tabs->GetCurrentTab();
}

int GridCtrl::SetTabBackColor(int id, COLORREF color) {
    return tabs->SetTabBackColor(id, color);
}

int GridCtrl::SetTabTextColor(int id, COLORREF color) {
    return tabs->SetTabTextColor(id, color);
}
