#include "platform/backend/SdlBackend.h"

#include <cmath>
#include <vector>

#include "platform/base/Messages.h"
#include "platform/base/Codepage.h"
#include "platform/user/Input.h"
#include "platform/user/Screen.h"
#include "platform/user/User.h"

namespace plat {

namespace {

int VirtualKey(SDL_Keycode k) {
    if (k >= SDLK_a && k <= SDLK_z) return 'A' + (k - SDLK_a);
    if (k >= SDLK_0 && k <= SDLK_9) return '0' + (k - SDLK_0);
    if (k >= SDLK_F1 && k <= SDLK_F12) return VK_F1 + (k - SDLK_F1);
    switch (k) {
    case SDLK_RETURN:
    case SDLK_KP_ENTER: return VK_RETURN;
    case SDLK_ESCAPE: return VK_ESCAPE;
    case SDLK_TAB: return VK_TAB;
    case SDLK_BACKSPACE: return VK_BACK;
    case SDLK_SPACE: return VK_SPACE;
    case SDLK_DELETE: return VK_DELETE;
    case SDLK_INSERT: return VK_INSERT;
    case SDLK_HOME: return VK_HOME;
    case SDLK_END: return VK_END;
    case SDLK_PAGEUP: return VK_PRIOR;
    case SDLK_PAGEDOWN: return VK_NEXT;
    case SDLK_LEFT: return VK_LEFT;
    case SDLK_RIGHT: return VK_RIGHT;
    case SDLK_UP: return VK_UP;
    case SDLK_DOWN: return VK_DOWN;
    case SDLK_LSHIFT:
    case SDLK_RSHIFT: return VK_SHIFT;
    case SDLK_LCTRL:
    case SDLK_RCTRL: return VK_CONTROL;
    case SDLK_LALT:
    case SDLK_RALT: return VK_MENU;
    case SDLK_SEMICOLON: return VK_OEM_1;
    case SDLK_EQUALS: return VK_OEM_PLUS;
    case SDLK_COMMA: return VK_OEM_COMMA;
    case SDLK_MINUS: return VK_OEM_MINUS;
    case SDLK_PERIOD: return VK_OEM_PERIOD;
    case SDLK_SLASH: return VK_OEM_2;
    case SDLK_BACKQUOTE: return 0xC0;
    case SDLK_LEFTBRACKET: return 0xDB;
    case SDLK_BACKSLASH: return 0xDC;
    case SDLK_RIGHTBRACKET: return 0xDD;
    case SDLK_QUOTE: return 0xDE;
    default: return 0;
    }
}

}  // namespace

SdlBackend* SdlBackend::Open() {
    if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_EVENTS) != 0) return nullptr;
    auto* b = new SdlBackend;
    SDL_DisplayMode mode;
    if (SDL_GetCurrentDisplayMode(0, &mode) == 0) b->screen = SIZE{mode.w, mode.h};
    return b;
}

SdlBackend::~SdlBackend() {
    for (auto& [hwnd, window] : windows) SDL_DestroyWindow(window);
    for (auto& [id, cursor] : cursors) SDL_FreeCursor(cursor);
    if (audio) SDL_CloseAudioDevice(audio);
    SDL_Quit();
}

DWORD SdlBackend::Now() const { return SDL_GetTicks(); }

void SdlBackend::Sleep(DWORD ms) {
    Present();
    SDL_Delay(ms);
}

void SdlBackend::TopLevelChanged(HWND hwnd) {
    RECT r;
    bool alive = IsWindow(hwnd) && GetWindowRect(hwnd, &r);
    bool visible = alive && IsWindowVisible(hwnd);
    auto it = windows.find(hwnd);
    if (!visible) {
        if (it != windows.end()) {
            SDL_DestroyWindow(it->second);
            windows.erase(it);
        }
        dirty.erase(hwnd);
        return;
    }
    int w = std::max<int>(r.right - r.left, 1), h = std::max<int>(r.bottom - r.top, 1);
    if (it == windows.end()) {
        Uint32 flags = SDL_WINDOW_SHOWN | SDL_WINDOW_BORDERLESS;
        if (GetWindowLong(hwnd, GWL_EXSTYLE) & (WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE)) flags |= SDL_WINDOW_TOOLTIP;
        SDL_Window* sw = SDL_CreateWindow(GetWindowString(hwnd).c_str(), r.left, r.top, w, h, flags);
        if (!sw) return;
        it = windows.emplace(hwnd, sw).first;
    } else {
        SDL_SetWindowPosition(it->second, r.left, r.top);
        SDL_SetWindowSize(it->second, w, h);
        SDL_SetWindowTitle(it->second, GetWindowString(hwnd).c_str());
    }
    if (GetActiveWindow() == hwnd) SDL_RaiseWindow(it->second);
    dirty.insert(hwnd);
}

void SdlBackend::Present() {
    for (HWND hwnd : dirty) {
        auto it = windows.find(hwnd);
        cairo_surface_t* pixels = WindowSurface(hwnd);
        if (it == windows.end() || !pixels) continue;
        cairo_surface_flush(pixels);
        SDL_Surface* src = SDL_CreateRGBSurfaceWithFormatFrom(
            cairo_image_surface_get_data(pixels), cairo_image_surface_get_width(pixels),
            cairo_image_surface_get_height(pixels), 32, cairo_image_surface_get_stride(pixels),
            SDL_PIXELFORMAT_RGB888);
        SDL_Surface* dst = SDL_GetWindowSurface(it->second);
        if (src && dst) {
            SDL_BlitSurface(src, nullptr, dst, nullptr);
            SDL_UpdateWindowSurface(it->second);
        }
        if (src) SDL_FreeSurface(src);
    }
    dirty.clear();
}

HWND SdlBackend::WindowOf(Uint32 sdlId) const {
    for (const auto& [hwnd, window] : windows)
        if (SDL_GetWindowID(window) == sdlId) return hwnd;
    return nullptr;
}

void SdlBackend::Translate(const SDL_Event& e) {
    auto screenPoint = [&](Uint32 windowId, int x, int y) {
        RECT r{};
        GetWindowRect(WindowOf(windowId), &r);
        return POINT{r.left + x, r.top + y};
    };
    auto button = [](Uint8 b) { return b == SDL_BUTTON_RIGHT ? 1 : b == SDL_BUTTON_MIDDLE ? 2 : 0; };
    switch (e.type) {
    case SDL_MOUSEMOTION:
        PushInput(RawInput{RawInput::MouseMove, screenPoint(e.motion.windowID, e.motion.x, e.motion.y), 0, 0, 0});
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        PushInput(RawInput{e.type == SDL_MOUSEBUTTONDOWN ? RawInput::ButtonDown : RawInput::ButtonUp,
                           screenPoint(e.button.windowID, e.button.x, e.button.y), button(e.button.button), 0, 0});
        break;
    case SDL_MOUSEWHEEL: {
        POINT p;
        GetCursorPos(&p);
        PushInput(RawInput{RawInput::Wheel, p, 0, e.wheel.y * WHEEL_DELTA, 0});
        break;
    }
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        if (int vk = VirtualKey(e.key.keysym.sym))
            PushInput(RawInput{e.type == SDL_KEYDOWN ? RawInput::KeyDown : RawInput::KeyUp, {}, 0, vk, 0});
        break;
    case SDL_WINDOWEVENT:
        if (e.window.event == SDL_WINDOWEVENT_CLOSE) {
            if (HWND h = WindowOf(e.window.windowID)) PostMessage(h, WM_CLOSE, 0, 0);
        } else if (e.window.event == SDL_WINDOWEVENT_EXPOSED) {
            if (HWND h = WindowOf(e.window.windowID)) dirty.insert(h);
        }
        break;
    case SDL_QUIT:
        if (HWND h = GetActiveWindow()) PostMessage(h, WM_CLOSE, 0, 0);
        break;
    default: break;
    }
}

// The standard cursors the programs set become the desktop's own shapes.
void SdlBackend::ShowCursor() {
    HCURSOR wanted = GetCursor();
    if (wanted == shownCursor) return;
    shownCursor = wanted;
    static const std::pair<const char*, SDL_SystemCursor> shapes[] = {
        {IDC_ARROW, SDL_SYSTEM_CURSOR_ARROW}, {IDC_IBEAM, SDL_SYSTEM_CURSOR_IBEAM},
        {IDC_WAIT, SDL_SYSTEM_CURSOR_WAIT},   {IDC_CROSS, SDL_SYSTEM_CURSOR_CROSSHAIR},
        {IDC_SIZEWE, SDL_SYSTEM_CURSOR_SIZEWE}, {IDC_SIZENS, SDL_SYSTEM_CURSOR_SIZENS},
        {IDC_SIZEALL, SDL_SYSTEM_CURSOR_SIZEALL}, {IDC_NO, SDL_SYSTEM_CURSOR_NO},
        {IDC_HAND, SDL_SYSTEM_CURSOR_HAND}};
    SDL_SystemCursor shape = SDL_SYSTEM_CURSOR_ARROW;
    for (const auto& [id, sdl] : shapes)
        if (LoadCursor(nullptr, id) == wanted) shape = sdl;
    SDL_Cursor*& cursor = cursors[wanted];
    if (!cursor) cursor = SDL_CreateSystemCursor(shape);
    if (cursor) SDL_SetCursor(cursor);
}

bool SdlBackend::Wait(std::optional<DWORD> nextTimer) {
    Present();
    ShowCursor();
    int timeout = -1;
    if (nextTimer) timeout = std::max<int>(0, static_cast<int>(static_cast<std::int32_t>(*nextTimer - Now())));
    SDL_Event e;
    if (timeout < 0 ? SDL_WaitEvent(&e) : SDL_WaitEventTimeout(&e, timeout)) {
        Translate(e);
        while (SDL_PollEvent(&e)) Translate(e);
    }
    return true;
}

void SdlBackend::Beep(DWORD frequency, DWORD ms) {
    // Sound is opened at the first beep: a machine without a sound card complains only then.
    if (!audioTried) {
        audioTried = true;
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
            SDL_AudioSpec want{}, have{};
            want.freq = 22050;
            want.format = AUDIO_S16SYS;
            want.channels = 1;
            want.samples = 1024;
            audio = SDL_OpenAudioDevice(nullptr, 0, &want, &have, 0);
            if (audio) SDL_PauseAudioDevice(audio, 0);
        }
    }
    if (!audio) return;
    const int rate = 22050;
    std::vector<Sint16> samples(static_cast<size_t>(rate) * ms / 1000);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<Sint16>(6000 * std::sin(2 * M_PI * frequency * static_cast<double>(i) / rate));
    SDL_QueueAudio(audio, samples.data(), static_cast<Uint32>(samples.size() * sizeof(Sint16)));
}

std::string SdlBackend::ClipboardText() {
    char* text = SDL_GetClipboardText();
    std::string s = text ? Utf8ToCp1252(text) : std::string();
    SDL_free(text);
    return s;
}

void SdlBackend::SetClipboardText(const std::string& text) { SDL_SetClipboardText(Cp1252ToUtf8(text).c_str()); }

}  // namespace plat
