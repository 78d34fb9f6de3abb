#include "apps/cadhost/WindowSystem.h"

#include "apps/cadhost/CommandLine.h"
#include "platform/backend/HeadlessBackend.h"

#include <cstdlib>

namespace {

bool HasDisplay() {
    return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
}

} // namespace

WindowSystem::WindowSystem(const CommandLine& options) {
    const bool headless = options.headless || !options.scriptPath.empty() || !HasDisplay();
    if (!headless) sdl.reset(plat::SdlBackend::Open());
    if (sdl) {
        plat::InstallBackend(sdl.get());
        return;
    }
    plat::HeadlessBackend& backend = plat::Headless();
    if (options.screenWidth > 0)
        backend.SetScreenSize(SIZE{options.screenWidth, options.screenHeight});
    plat::InstallBackend(&backend);
}

WindowSystem::~WindowSystem() {
    // The window system may outlive this object in the program's last moments.
    if (sdl) plat::InstallBackend(&plat::Headless());
}

RECT WindowSystem::MainWindowArea() const {
    const SIZE screen = plat::CurrentBackend().ScreenSize();
    if (!sdl) return RECT{0, 0, screen.cx, screen.cy};
    return RECT{0, 0, screen.cx * 3 / 4, screen.cy * 3 / 4};
}
