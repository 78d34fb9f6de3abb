#include "apps/cadhost/ScriptPlayer.h"

#include "apps/cadhost/WindowDump.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Dialog.h"
#include "platform/user/Input.h"
#include "platform/user/Screen.h"
#include "platform/user/WindowManager.h"

#include <utility>

using Command = ScriptLine::Command;

namespace {

void Pointer(plat::RawInput::Kind kind, POINT screen, int button = 0, int value = 0) {
    plat::PushInput(plat::RawInput{kind, screen, button, value, 0});
}

} // namespace

ScriptPlayer::ScriptPlayer(host::EventLog& events, std::vector<ScriptLine> lines)
    : events(events), lines(std::move(lines)) {}

ScriptPlayer::~ScriptPlayer() {
    if (outerStall) plat::WindowManager::Get().onStall = std::move(outerStall);
}

void ScriptPlayer::Start() {
    plat::HeadlessBackend& backend = plat::Headless();
    backend.SetAutoAdvance(false);
    for (const ScriptLine& line : lines) backend.Schedule([this, &line] { Perform(line); });
    outerStall = std::exchange(plat::WindowManager::Get().onStall, [this] { OnStall(); });
}

void ScriptPlayer::Finish() {
    MSG msg;
    while (GetMessage(&msg, nullptr, 0, 0)) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

void ScriptPlayer::OnStall() {
    // No modal window: the loop waiting is Finish's, or a module's own, and it ends.
    if (ModalDepth() == 0) {
        PostQuitMessage(0);
        return;
    }
    if (!windowLeftOpen) events.Error("script ended with a window open");
    windowLeftOpen = true;
    EndAllModalLoops(IDCANCEL);
    // Wakes the loops, so that each finds it has ended.
    PostMessage(nullptr, WM_NULL, 0, 0);
}

void ScriptPlayer::Perform(const ScriptLine& line) {
    POINT at{};
    if (line.AimsThePointer() && !Aim(line, &at)) return;
    // Each line is a new gesture: two click lines are two clicks, never a double click.
    plat::ForgetLastClick();
    switch (line.command) {
    case Command::Click: plat::PushClick(at, 0); break;
    case Command::DoubleClick: plat::PushClick(at, 0, true); break;
    case Command::RightClick: plat::PushClick(at, 1); break;
    case Command::Press:
        Pointer(plat::RawInput::MouseMove, at);
        Pointer(plat::RawInput::ButtonDown, at);
        break;
    case Command::Move: Pointer(plat::RawInput::MouseMove, at); break;
    case Command::Release:
        Pointer(plat::RawInput::MouseMove, at);
        Pointer(plat::RawInput::ButtonUp, at);
        break;
    case Command::Wheel:
        Pointer(plat::RawInput::MouseMove, at);
        Pointer(plat::RawInput::Wheel, at, 0, line.amount);
        break;
    case Command::Button: plat::PushClick(at, 0); break;
    case Command::Key:
        for (const KeyStroke& key : line.keys) plat::PushKey(key.vk, key.shift, key.ctrl, key.alt);
        break;
    case Command::Type:
        for (char c : line.text) plat::PushChar(c);
        break;
    case Command::Wait: plat::Headless().WaitFor(static_cast<DWORD>(line.amount)); break;
    case Command::Dump:
        if (HWND active = GetActiveWindow())
            WindowDump::Print(active, events);
        else
            Fail(line, "no window is active");
        break;
    case Command::Screenshot:
        if (!plat::WriteScreenshot(line.text.c_str())) events.Error("cannot write " + line.text);
        break;
    }
}

bool ScriptPlayer::Aim(const ScriptLine& line, POINT* screen) {
    HWND target = GetActiveWindow();
    if (!target) {
        Fail(line, "no window is active");
        return false;
    }
    const std::optional<int> control =
        line.command == Command::Button ? std::optional<int>(line.amount) : line.control;
    if (control) {
        target = GetDlgItem(target, *control);
        if (!target) {
            Fail(line, "the active window has no control " + std::to_string(*control));
            return false;
        }
    }
    if (line.command == Command::Button) {
        RECT area{};
        GetWindowRect(target, &area);
        *screen = POINT{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
        return true;
    }
    *screen = line.point;
    ClientToScreen(target, screen);
    return true;
}

void ScriptPlayer::Fail(const ScriptLine& line, const std::string& what) {
    events.Error("script line " + std::to_string(line.number) + ": " + what);
}
