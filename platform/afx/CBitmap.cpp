#include "platform/afx/CBitmap.h"

#include "platform/afx/CDC.h"

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    return dc && Attach(::CreateCompatibleBitmap(dc->GetSafeHdc(), width, height));
}
