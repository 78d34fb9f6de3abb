// The platform layer's example program. With a display it opens the demo dialog in a real
// window; headless (or with --headless) it plays a short session on it, writes a screenshot
// with --screenshot PATH, and prints what was chosen. --hold MS closes the real window after
// MS milliseconds, for a screenshot taken from outside.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "apps/platformdemo/DemoDialog.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/backend/SdlBackend.h"
#include "platform/user/Input.h"
#include "platform/user/Screen.h"
#include "platform/user/WindowManager.h"

namespace {

// A person's session: type a name, add it (it comes selected), OK, and confirm. The screenshot is taken
// while the name is being typed, so it shows the focused field with its caret.
void PlaySession(plat::HeadlessBackend& headless, const std::string& screenshot) {
    for (char c : std::string("Parcel A")) headless.Schedule([c] { plat::PushChar(c); });
    headless.Schedule([screenshot] {
        if (!screenshot.empty() && !plat::WriteScreenshot(screenshot.c_str()))
            std::fprintf(stderr, "platformdemo: cannot write %s\n", screenshot.c_str());
    });
    headless.Schedule([] {
        plat::PushKey(VK_TAB);    // to Add
        plat::PushKey(VK_SPACE);  // press it: the name goes into the list, selected
    });
    headless.Schedule([] { plat::PushKey(VK_RETURN); });  // OK
    headless.Schedule([] { plat::PushKey(VK_RETURN); });  // confirm in the message box
}

}  // namespace

int main(int argc, char** argv) {
    bool headless = std::getenv("DISPLAY") == nullptr;
    std::string screenshot;
    long hold = 0;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--headless")) headless = true;
        else if (!std::strcmp(argv[i], "--screenshot") && i + 1 < argc) screenshot = argv[++i];
        else if (!std::strcmp(argv[i], "--hold") && i + 1 < argc) hold = std::atol(argv[++i]);
        else {
            std::fprintf(stderr, "usage: platformdemo [--headless] [--screenshot PATH] [--hold MS]\n");
            return 2;
        }
    }
    plat::WindowManager::Get().onEvent = [](const std::string& kind, const std::string& text) {
        std::printf(";; %s: %s\n", kind.c_str(), text.c_str());
    };
    plat::SdlBackend* sdl = headless ? nullptr : plat::SdlBackend::Open();
    if (sdl) {
        plat::InstallBackend(sdl);
        // For a look from outside: the dialog stays up for `hold` ms, then closes as cancelled.
        if (hold > 0)
            SetTimer(nullptr, 0, static_cast<UINT>(hold), [](HWND, UINT, UINT_PTR, DWORD) { EndAllModalLoops(IDCANCEL); });
    } else {
        plat::Headless().SetAutoAdvance(false);
        PlaySession(plat::Headless(), screenshot);
    }
    DemoDialog dialog;
    INT_PTR result = dialog.DoModal();
    if (result == IDOK) std::printf("chosen: %s\n", dialog.Choice().c_str());
    else std::printf("cancelled\n");
    delete sdl;
    return 0;
}
