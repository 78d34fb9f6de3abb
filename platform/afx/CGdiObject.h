#pragma once
// The framework's owner of a drawing object: it deletes the object when it goes, unless the
// handle was detached first. FromHandle answers the wrapper of any handle: the object that
// holds it, or else a temporary wrapper that lives as long as the program and never deletes
// the handle (as the framework's temporary objects, without their idle-time clean-up).

#include "platform/afx/CObject.h"
#include "platform/gdi/Gdi.h"

#include <memory>
#include <unordered_map>

class CGdiObject : public CObject {
public:
    CGdiObject() = default;
    ~CGdiObject() override;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    HGDIOBJ m_hObject = nullptr;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }

    // Fails when this object holds a handle already or `object` is null.
    BOOL Attach(HGDIOBJ object);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    BOOL CreateStockObject(int which);
    int GetObject(int size, void* out) const { return ::GetObject(m_hObject, size, out); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }

    static CGdiObject* FromHandle(HGDIOBJ object);

protected:
    // The wrapper of type T for a handle of its kind.
    template <typename T> static T* FromHandleAs(HGDIOBJ object) {
        if (!object) return nullptr;
        if (auto* owner = dynamic_cast<T*>(Owner(object))) return owner;
        static std::unordered_map<HGDIOBJ, std::unique_ptr<T>> temporaries;
        auto& slot = temporaries[object];
        if (!slot) {
            slot = std::make_unique<T>();
            slot->temporary_ = true;
        }
        slot->m_hObject = object; // it may have been detached since
        return slot.get();
    }

private:
    static CGdiObject* Owner(HGDIOBJ object);
    bool temporary_ = false;
};
