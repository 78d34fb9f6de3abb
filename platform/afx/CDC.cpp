#include "platform/afx/CDC.h"

#include <memory>
#include <unordered_map>

CDC::~CDC() {
    if (!temporary_) DeleteDC();
}

CDC* CDC::FromHandle(HDC dc) {
    if (!dc) return nullptr;
    static std::unordered_map<HDC, std::unique_ptr<CDC>> temporaries;
    auto& slot = temporaries[dc];
    if (!slot) {
        slot = std::make_unique<CDC>();
        slot->temporary_ = true;
    }
    // A temporary may have been detached, as ReleaseDC does with it.
    slot->m_hDC = dc;
    return slot.get();
}

BOOL CDC::Attach(HDC dc) {
    if (m_hDC || !dc || temporary_) return FALSE;
    m_hDC = dc;
    return TRUE;
}

HDC CDC::Detach() {
    HDC dc = m_hDC;
    m_hDC = nullptr;
    return dc;
}

BOOL CDC::DeleteDC() {
    if (!m_hDC || temporary_) return FALSE;
    return ::DeleteDC(Detach());
}

BOOL CDC::CreateCompatibleDC(CDC* dc) {
    return Attach(::CreateCompatibleDC(dc ? dc->m_hDC : nullptr));
}

namespace {
HGDIOBJ HandleOf(const CGdiObject* object) {
    return object ? object->GetSafeHandle() : nullptr;
}
} // namespace

CPen* CDC::SelectObject(CPen* pen) {
    return CPen::FromHandle(::SelectObject(m_hDC, HandleOf(pen)));
}

CBrush* CDC::SelectObject(CBrush* brush) {
    return CBrush::FromHandle(::SelectObject(m_hDC, HandleOf(brush)));
}

CFont* CDC::SelectObject(CFont* font) {
    return CFont::FromHandle(::SelectObject(m_hDC, HandleOf(font)));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    return CBitmap::FromHandle(::SelectObject(m_hDC, HandleOf(bitmap)));
}

CGdiObject* CDC::SelectObject(CGdiObject* object) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, HandleOf(object)));
}

CGdiObject* CDC::SelectStockObject(int which) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, GetStockObject(which)));
}

CPoint CDC::SetViewportOrg(int x, int y) {
    POINT old;
    ::SetViewportOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetViewportOrg() const {
    POINT org;
    ::GetViewportOrgEx(m_hDC, &org);
    return org;
}

CPoint CDC::OffsetViewportOrg(int dx, int dy) {
    POINT old;
    ::OffsetViewportOrgEx(m_hDC, dx, dy, &old);
    return old;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    POINT old;
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::MoveTo(int x, int y) {
    POINT old;
    ::MoveToEx(m_hDC, x, y, &old);
    return old;
}

void CDC::FillSolidRect(const RECT* r, COLORREF color) {
    ::SetBkColor(m_hDC, color);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, r, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color) {
    RECT r{x, y, x + cx, y + cy};
    FillSolidRect(&r, color);
}

void CDC::Draw3dRect(const RECT* r, COLORREF topLeft, COLORREF bottomRight) {
    Draw3dRect(r->left, r->top, r->right - r->left, r->bottom - r->top, topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight) {
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, bottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, bottomRight);
}

CSize CDC::GetTextExtent(const char* text, int count) const {
    SIZE size;
    ::GetTextExtentPoint32(m_hDC, text, count, &size);
    return size;
}

int CDC::StartDoc(const char* documentName) {
    DOCINFO info;
    info.lpszDocName = documentName;
    return StartDoc(&info);
}
