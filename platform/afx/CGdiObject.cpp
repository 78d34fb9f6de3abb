#include "platform/afx/CGdiObject.h"

namespace {

// The objects that own their handles, to find a handle's wrapper again.
std::unordered_map<HGDIOBJ, CGdiObject*>& Owners() {
    static std::unordered_map<HGDIOBJ, CGdiObject*> owners;
    return owners;
}

} // namespace

CGdiObject::~CGdiObject() {
    if (!temporary_) DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ object) {
    if (m_hObject || !object || temporary_) return FALSE;
    m_hObject = object;
    Owners()[object] = this;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ object = m_hObject;
    if (object && !temporary_) Owners().erase(object);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject() {
    if (!m_hObject || temporary_) return FALSE;
    return ::DeleteObject(Detach());
}

BOOL CGdiObject::CreateStockObject(int which) {
    return Attach(GetStockObject(which));
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ object) {
    return FromHandleAs<CGdiObject>(object);
}

CGdiObject* CGdiObject::Owner(HGDIOBJ object) {
    auto it = Owners().find(object);
    return it == Owners().end() ? nullptr : it->second;
}
