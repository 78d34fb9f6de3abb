// The registries of cell types, fonts and bitmaps. Cells name cell types by index; fonts and
// bitmaps they hold by object, and the index forms of the shortcuts take them from the lists.
// A font asked for twice is shared, and its tag counts the extra holders.

#include "grid/core/BmpReader.h"
#include "grid/core/GridCtrl.h"
#include "platform/afx/CBitmap.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <utility>

static_assert(offsetof(LOGFONT, lfFaceName) == 28, "the fixed part of a font description");

int GridCtrl::AddCellType(CellType* type) {
    if (!type) return -1;
    const int id = cellTypes.Add(type, 0);
    if (id < 0) return -1;
    type->grid = this;
    type->SetTypeId(id);
    return id;
}

int GridCtrl::RemoveCellType(int id) {
    cellTypes.RemoveAt(id);
    return 0;
}

CellType* GridCtrl::GetCellType(int id) {
    CObject* type = id < 1 ? nullptr : cellTypes.GetAt(id);
    return type ? static_cast<CellType*>(type) : &normalCellType;
}

int GridCtrl::GetCellTypeId(CellType* type) {
    return cellTypes.IndexOf(type);
}

int GridCtrl::AddFont(int height, int width, int escapement, int orientation, int weight,
                      BYTE italic, BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                      BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily,
                      const std::string& face) {
    LOGFONT wanted;
    wanted.lfHeight = height;
    wanted.lfWidth = width;
    wanted.lfEscapement = escapement;
    wanted.lfOrientation = orientation;
    wanted.lfWeight = weight;
    wanted.lfItalic = italic;
    wanted.lfUnderline = underline;
    wanted.lfStrikeOut = strikeOut;
    wanted.lfCharSet = charSet;
    wanted.lfOutPrecision = outPrecision;
    wanted.lfClipPrecision = clipPrecision;
    wanted.lfQuality = quality;
    wanted.lfPitchAndFamily = pitchAndFamily;
    // A name too long for the description leaves the face to the font mapper.
    if (face.size() < LF_FACESIZE) std::memcpy(wanted.lfFaceName, face.c_str(), face.size() + 1);

    for (int i = 0; i < fonts.GetCount(); ++i) {
        auto* font = static_cast<CFont*>(fonts.GetAt(i));
        LOGFONT held;
        if (!font || !font->GetLogFont(&held)) continue;
        if (std::memcmp(&held, &wanted, offsetof(LOGFONT, lfFaceName)) == 0 &&
            std::strcmp(held.lfFaceName, wanted.lfFaceName) == 0) {
            fonts.SetTag(i, fonts.GetTag(i) + 1);
            return i;
        }
    }
    auto font = std::make_unique<CFont>();
    if (!font->CreateFontIndirect(&wanted)) return -1;
    const int index = fonts.Add(font.get(), 0);
    if (index >= 0) font.release();
    return index;
}

int GridCtrl::AddFontByFace(const std::string& face, int height, int weight) {
    return AddFont(height, 0, 0, 0, weight, 0, 0, 0, 0, 0, 0, 0, 0, face);
}

void GridCtrl::Retire(PtrList& list, int index) {
    if (CObject* item = list.GetAt(index)) retired.emplace_back(item);
    list.RemoveAt(index);
}

void GridCtrl::RetireAll(PtrList& list) {
    for (int i = 0; i < list.GetCapacity(); ++i) Retire(list, i);
    list.RemoveAll();
}

int GridCtrl::ReleaseFont(int index) {
    if (!fonts.GetAt(index)) return 0;
    const int holders = fonts.GetTag(index) - 1;
    fonts.SetTag(index, holders);
    if (holders <= 0) Retire(fonts, index);
    return 0;
}

int GridCtrl::ClearFonts() {
    RetireAll(fonts);
    return 0;
}

CFont* GridCtrl::GetFont(int index) {
    return static_cast<CFont*>(fonts.GetAt(index));
}

int GridCtrl::SetDefaultFontByIndex(int index) {
    CFont* font = GetFont(index);
    return font ? SetDefaultFont(font) : 1;
}

int GridCtrl::AddBitmapResource(UINT id, const char* name) {
    auto bitmap = std::make_unique<CBitmap>();
    const BOOL loaded = name ? bitmap->LoadBitmap(name) : bitmap->LoadBitmap(id & 0xFFFF);
    // An empty bitmap object in the list would only draw nothing later; say so now instead.
    return loaded ? KeepBitmap(std::move(bitmap)) : -1;
}

int GridCtrl::AddBitmapFile(const std::string& path) {
    BmpResult read = ReadBmpFile(path);
    return read.bitmap ? KeepBitmap(std::move(read.bitmap)) : -1;
}

int GridCtrl::KeepBitmap(std::unique_ptr<CBitmap> bitmap) {
    const int index = bitmaps.Add(bitmap.get(), 0);
    // The list owns what it holds; what it could not take goes with the pointer.
    if (index >= 0) bitmap.release();
    return index;
}

int GridCtrl::RemoveBitmap(int index) {
    Retire(bitmaps, index);
    return 0;
}

int GridCtrl::ClearBitmaps() {
    RetireAll(bitmaps);
    return 0;
}

CBitmap* GridCtrl::GetBitmap(int index) {
    return static_cast<CBitmap*>(bitmaps.GetAt(index));
}
