// Bitmap resources: BMP files registered for a module, loaded by id and by name, through the
// framework's current resource module too, and damaged files refused.

#include "platform/afx/AfxApp.h"
#include "platform/afx/CBitmap.h"
#include "platform/user/User.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace {

HINSTANCE Module(std::uintptr_t n) {
    return reinterpret_cast<HINSTANCE>(n);
}

const std::vector<std::vector<COLORREF>> Pixels = {
    {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)},
    {RGB(10, 20, 30), RGB(255, 255, 255), RGB(0, 0, 0)}};

// The file of Pixels: 24 bits, the bottom row first, rows padded to 12 bytes.
std::vector<BYTE> File() {
    BITMAPFILEHEADER head;
    BITMAPINFOHEADER info;
    head.bfType = 0x4D42;
    head.bfOffBits = sizeof head + sizeof info;
    info.biSize = sizeof info;
    info.biWidth = 3, info.biHeight = 2, info.biPlanes = 1, info.biBitCount = 24;
    std::vector<BYTE> file(head.bfOffBits);
    std::memcpy(file.data(), &head, sizeof head);
    std::memcpy(file.data() + sizeof head, &info, sizeof info);
    for (int y = 1; y >= 0; --y) {
        for (COLORREF c : Pixels[y])
            file.insert(file.end(), {GetBValue(c), GetGValue(c), GetRValue(c)});
        file.insert(file.end(), 3, 0);
    }
    return file;
}

// The bitmap's size and its pixels, read through a memory context; deletes it.
void ExpectPixels(HBITMAP bitmap) {
    ASSERT_NE(bitmap, nullptr);
    BITMAP bm;
    ASSERT_EQ(GetObject(bitmap, sizeof bm, &bm), static_cast<int>(sizeof bm));
    EXPECT_EQ(bm.bmWidth, 3);
    EXPECT_EQ(bm.bmHeight, 2);
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, bitmap);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(GetPixel(dc, x, y), Pixels[y][x]) << x << "," << y;
    SelectObject(dc, old);
    DeleteDC(dc);
    DeleteObject(bitmap);
}

TEST(BitmapResources, LoadByIdAndByNameFromTheirModuleOnly) {
    std::vector<BYTE> file = File();
    RegisterBitmapResource(Module(0x7000), 301, file.data(), file.size());
    RegisterBitmapResource(Module(0x7000), "Palette", file.data(), file.size());
    ExpectPixels(LoadBitmap(Module(0x7000), MAKEINTRESOURCE(301)));
    ExpectPixels(LoadBitmapA(Module(0x7000), "PALETTE"));
    EXPECT_EQ(LoadBitmap(Module(0x7000), MAKEINTRESOURCE(302)), nullptr);
    EXPECT_EQ(LoadBitmap(Module(0x7000), "Other"), nullptr);
    EXPECT_EQ(LoadBitmap(Module(0x7001), MAKEINTRESOURCE(301)), nullptr);
    EXPECT_EQ(LoadBitmap(Module(0x7000), nullptr), nullptr);
}

TEST(BitmapResources, DamagedFilesGiveNoBitmap) {
    std::vector<BYTE> good = File();
    auto damaged = [&](const std::function<void(std::vector<BYTE>&)>& damage) {
        std::vector<BYTE> file = good;
        damage(file);
        RegisterBitmapResource(Module(0x7100), 1, file.data(), file.size());
        return LoadBitmap(Module(0x7100), MAKEINTRESOURCE(1));
    };
    // No signature, rows cut short, no header, pixels past the end or inside the header, a
    // header larger than the room before the pixels, a depth that does not exist.
    for (auto damage : std::vector<std::function<void(std::vector<BYTE>&)>>{
             [](auto& f) { f[0] = 'X'; }, [](auto& f) { f.erase(f.end() - 4, f.end()); },
             [](auto& f) { f.resize(20); }, [](auto& f) { f[10] = 0xFF, f[11] = 0x7F; },
             [](auto& f) { f[10] = 20; }, [](auto& f) { f[14] = 60; }, [](auto& f) { f[28] = 7; }})
        EXPECT_EQ(damaged(damage), nullptr);
    // The good file registered again under the same id replaces the damaged one.
    ExpectPixels(damaged([](auto&) {}));
}

TEST(BitmapResources, FrameworkLoadsFromTheCurrentResourceModule) {
    std::vector<BYTE> file = File();
    RegisterBitmapResource(Module(0x7200), 5, file.data(), file.size());
    RegisterBitmapResource(Module(0x7200), "Five", file.data(), file.size());
    HINSTANCE previous = AfxGetResourceHandle();
    AfxSetResourceHandle(Module(0x7201));
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(5));
    AfxSetResourceHandle(Module(0x7200));
    CBitmap byId, byName;
    EXPECT_TRUE(byId.LoadBitmap(5));
    EXPECT_FALSE(byId.LoadBitmap("Five"));
    EXPECT_TRUE(byName.LoadBitmap("five"));
    AfxSetResourceHandle(previous);
    ExpectPixels(static_cast<HBITMAP>(byId.Detach()));
    ExpectPixels(static_cast<HBITMAP>(byName.Detach()));
}

} // namespace
