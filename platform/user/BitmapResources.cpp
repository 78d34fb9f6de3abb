#include "platform/user/BitmapResources.h"

#include <cctype>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "platform/gdi/Gdi.h"
#include "platform/user/User.h"

namespace {

// A resource is known by its module and either its id (with no name) or its name (id 0).
using Key = std::tuple<HINSTANCE, WORD, std::string>;

std::map<Key, std::vector<BYTE>>& Resources() {
    static std::map<Key, std::vector<BYTE>> resources;
    return resources;
}

Key KeyOf(HINSTANCE module, const char* name) {
    if (IS_INTRESOURCE(name)) return {module, static_cast<WORD>(reinterpret_cast<std::uintptr_t>(name)), {}};
    std::string folded = name;
    for (char& c : folded) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return {module, 0, folded};
}

void Keep(const Key& key, const void* bmp, std::size_t size) {
    const auto* bytes = static_cast<const BYTE*>(bmp);
    Resources()[key] = bytes ? std::vector<BYTE>(bytes, bytes + size) : std::vector<BYTE>();
}

// The file header, then the info header and its colour table up to the pixels, which run to
// the end. The headers are copied out: inside the file they lie off their alignment.
HBITMAP Decode(const std::vector<BYTE>& file) {
    BITMAPFILEHEADER head;
    BITMAPINFOHEADER info;
    if (file.size() < sizeof head + sizeof info) return nullptr;
    std::memcpy(&head, file.data(), sizeof head);
    std::memcpy(&info, file.data() + sizeof head, sizeof info);
    if (head.bfType != 0x4D42 || head.bfOffBits < sizeof head + sizeof info || head.bfOffBits >= file.size())
        return nullptr;
    std::size_t infoSize = head.bfOffBits - sizeof head;
    std::vector<DWORD> table((infoSize + sizeof(DWORD) - 1) / sizeof(DWORD));
    std::memcpy(table.data(), file.data() + sizeof head, infoSize);
    return CreateDIBitmapSized(&info, CBM_INIT, file.data() + head.bfOffBits, file.size() - head.bfOffBits,
                               reinterpret_cast<const BITMAPINFO*>(table.data()), infoSize, DIB_RGB_COLORS);
}

}  // namespace

void RegisterBitmapResource(HINSTANCE module, int id, const void* bmp, std::size_t size) {
    Keep(KeyOf(module, MAKEINTRESOURCE(id)), bmp, size);
}

void RegisterBitmapResource(HINSTANCE module, const char* name, const void* bmp, std::size_t size) {
    if (name) Keep(KeyOf(module, name), bmp, size);
}

HBITMAP LoadBitmapA(HINSTANCE module, const char* name) {
    if (!name) return nullptr;
    auto it = Resources().find(KeyOf(module, name));
    return it == Resources().end() ? nullptr : Decode(it->second);
}
