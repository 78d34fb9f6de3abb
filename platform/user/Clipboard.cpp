// Memory blocks and the text clipboard. The clipboard's content lives in the backend, so that
// under SDL it is the system's clipboard; the blocks handed in and out are the platform's.

#include <cstring>
#include <memory>
#include <set>
#include <vector>

#include "platform/backend/Backend.h"
#include "platform/user/Internal.h"

struct HGLOBAL__ {
    std::vector<char> bytes;
    int locks = 0;
};

namespace {

std::set<HGLOBAL>& Blocks() {
    static std::set<HGLOBAL> blocks;
    return blocks;
}

bool Valid(HGLOBAL h) { return h && Blocks().count(h); }

struct ClipboardState {
    bool open = false;
    HGLOBAL owned = nullptr;  // the block last handed in or out
} clipboard;

void DropOwned() {
    if (clipboard.owned) GlobalFree(clipboard.owned);
    clipboard.owned = nullptr;
}

}  // namespace

HGLOBAL GlobalAlloc(UINT, std::size_t bytes) {
    auto* h = new HGLOBAL__;
    h->bytes.assign(bytes, 0);
    Blocks().insert(h);
    return h;
}

void* GlobalLock(HGLOBAL h) {
    if (!Valid(h)) return nullptr;
    ++h->locks;
    return h->bytes.data();
}

BOOL GlobalUnlock(HGLOBAL h) {
    if (!Valid(h) || h->locks == 0) return FALSE;
    return --h->locks > 0;
}

HGLOBAL GlobalFree(HGLOBAL h) {
    if (!Valid(h)) return h;
    Blocks().erase(h);
    delete h;
    return nullptr;
}

std::size_t GlobalSize(HGLOBAL h) { return Valid(h) ? h->bytes.size() : 0; }

BOOL OpenClipboard(HWND) {
    if (clipboard.open) return FALSE;
    clipboard.open = true;
    return TRUE;
}

BOOL CloseClipboard() {
    bool was = clipboard.open;
    clipboard.open = false;
    return was;
}

BOOL EmptyClipboard() {
    if (!clipboard.open) return FALSE;
    DropOwned();
    plat::WM().GetBackend().SetClipboardText("");
    return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE data) {
    auto h = static_cast<HGLOBAL>(data);
    if (!clipboard.open || format != CF_TEXT || !Valid(h)) return nullptr;
    const std::vector<char>& b = h->bytes;
    plat::WM().GetBackend().SetClipboardText(std::string(b.data(), strnlen(b.data(), b.size())));
    if (clipboard.owned != h) DropOwned();
    clipboard.owned = h;
    return h;
}

HANDLE GetClipboardData(UINT format) {
    if (!clipboard.open || format != CF_TEXT) return nullptr;
    std::string text = plat::WM().GetBackend().ClipboardText();
    if (text.empty()) return nullptr;
    DropOwned();
    HGLOBAL h = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(h->bytes.data(), text.c_str(), text.size() + 1);
    clipboard.owned = h;
    return h;
}

BOOL IsClipboardFormatAvailable(UINT format) {
    return format == CF_TEXT && !plat::WM().GetBackend().ClipboardText().empty();
}

BOOL EnumChildWindows(HWND parent, WNDENUMPROC proc, LPARAM lParam) {
    plat::Window* p = plat::W(parent ? parent : GetDesktopWindow());
    if (!p || !proc) return FALSE;
    std::vector<HWND> all;
    std::function<void(plat::Window*)> collect = [&](plat::Window* w) {
        for (plat::Window* c : w->children) {
            all.push_back(c->handle);
            collect(c);
        }
    };
    collect(p);
    for (HWND h : all)
        if (IsWindow(h) && !proc(h, lParam)) break;
    return TRUE;
}
