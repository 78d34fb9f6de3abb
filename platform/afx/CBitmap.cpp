#include "platform/afx/CBitmap.h"

#include "platform/afx/AfxApp.h"
#include "platform/afx/CDC.h"
#include "platform/user/User.h"

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    return dc && Attach(::CreateCompatibleBitmap(dc->GetSafeHdc(), width, height));
}

BOOL CBitmap::LoadBitmap(UINT id) { return LoadBitmap(MAKEINTRESOURCE(static_cast<int>(id))); }

BOOL CBitmap::LoadBitmap(const char* name) {
    return !m_hObject && Attach(::LoadBitmapA(AfxGetResourceHandle(), name));
}
