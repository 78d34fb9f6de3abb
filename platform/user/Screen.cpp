#include "platform/user/Screen.h"

#include <vector>

#include "platform/backend/Backend.h"
#include "platform/user/Internal.h"

namespace plat {

cairo_surface_t* ComposeScreen() {
    SIZE size = WM().GetBackend().ScreenSize();
    cairo_surface_t* screen = cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.cx, size.cy);
    cairo_t* cr = cairo_create(screen);
    COLORREF desk = GetSysColor(COLOR_BACKGROUND);
    cairo_set_source_rgb(cr, GetRValue(desk) / 255.0, GetGValue(desk) / 255.0, GetBValue(desk) / 255.0);
    cairo_paint(cr);
    std::vector<Window*> tops = WM().Desktop()->children;
    for (auto it = tops.rbegin(); it != tops.rend(); ++it) {
        Window* t = *it;
        if (!t->Visible() || !t->surface) continue;
        cairo_set_source_surface(cr, t->surface, t->rect.left, t->rect.top);
        cairo_paint(cr);
    }
    cairo_destroy(cr);
    return screen;
}

cairo_surface_t* WindowSurface(HWND topLevel) {
    Window* w = W(topLevel);
    if (!w || w->IsChild()) return nullptr;
    EnsureSurface(w);
    return w->surface;
}

bool WriteScreenshot(const char* path) {
    cairo_surface_t* screen = ComposeScreen();
    cairo_status_t status = cairo_surface_write_to_png(screen, path);
    cairo_surface_destroy(screen);
    return status == CAIRO_STATUS_SUCCESS;
}

}  // namespace plat
