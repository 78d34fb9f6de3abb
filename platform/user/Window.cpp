#include "platform/user/Window.h"

namespace plat {

Window::~Window() {
    if (update) cairo_region_destroy(update);
    if (surface) cairo_surface_destroy(surface);
}

Window* Window::TopLevel() {
    Window* w = this;
    while (w->parent && w->parent->parent) w = w->parent;
    return w;
}

bool Window::ReallyVisible() const {
    for (const Window* w = this; w && w->parent; w = w->parent)
        if (!w->Visible()) return false;
    return true;
}

POINT Window::ClientOriginOnScreen() const {
    POINT p{clientInWindow.left, clientInWindow.top};
    for (const Window* w = this; w && w->parent; w = w->parent) {
        p.x += w->rect.left;
        p.y += w->rect.top;
        if (w->parent->parent) {
            p.x += w->parent->clientInWindow.left;
            p.y += w->parent->clientInWindow.top;
        }
    }
    return p;
}

bool Window::NeedsPaint() const {
    return internalPaint || framePending || (update && !cairo_region_is_empty(update));
}

POINT Window::ClientOriginOnSurface() const {
    POINT p{clientInWindow.left, clientInWindow.top};
    for (const Window* w = this; w->parent && w->parent->parent; w = w->parent) {
        p.x += w->rect.left + w->parent->clientInWindow.left;
        p.y += w->rect.top + w->parent->clientInWindow.top;
    }
    return p;
}

}  // namespace plat
