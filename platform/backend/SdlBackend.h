#pragma once
// Real windows through SDL2: one SDL window for each visible top-level window, showing the
// pixels the window system drew for it (frame and caption included), real keyboard and mouse,
// the system clipboard, and beeps as tones.

#include <map>
#include <set>

#include <SDL.h>

#include "platform/backend/Backend.h"

namespace plat {

class SdlBackend : public Backend {
public:
    // Answers null when SDL cannot open a display.
    static SdlBackend* Open();
    ~SdlBackend() override;

    DWORD Now() const override;
    void Sleep(DWORD ms) override;
    bool Wait(std::optional<DWORD> nextTimer) override;
    SIZE ScreenSize() const override { return screen; }
    void TopLevelChanged(HWND hwnd) override;
    void TopLevelPainted(HWND hwnd) override { dirty.insert(hwnd); }
    void Beep(DWORD frequency, DWORD ms) override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;

private:
    SdlBackend() = default;
    void Present();
    void Translate(const SDL_Event& e);
    HWND WindowOf(Uint32 sdlId) const;
    void ShowCursor();

    SIZE screen{1280, 1024};
    std::map<HWND, SDL_Window*> windows;
    std::set<HWND> dirty;
    SDL_AudioDeviceID audio = 0;
    bool audioTried = false;
    HCURSOR shownCursor = nullptr;
    std::map<HCURSOR, SDL_Cursor*> cursors;
};

}  // namespace plat
