#include "platform/gdi/GdiObject.h"

#include <unordered_set>

namespace gdi {

namespace {
std::unordered_set<const void*>& Handles() {
    static std::unordered_set<const void*> handles;
    return handles;
}
} // namespace

void RegisterObject(const GdiObject* object) {
    Handles().insert(object);
}
void ForgetObject(const GdiObject* object) {
    Handles().erase(object);
}
bool IsObject(const void* handle) {
    return handle && Handles().count(handle) != 0;
}

GdiObject* LiveObject(const void* handle) {
    if (!IsObject(handle)) return nullptr;
    auto* object = static_cast<GdiObject*>(const_cast<void*>(handle));
    return object->deletePending ? nullptr : object;
}

void Destroy(GdiObject* object) {
    ForgetObject(object);
    delete object;
}

ObjectRef::ObjectRef(GdiObject* object) : object_(object) {
    if (object_) ++object_->holders;
}

ObjectRef& ObjectRef::operator=(const ObjectRef& other) {
    ObjectRef copy(other);
    std::swap(object_, copy.object_);
    return *this;
}

ObjectRef::~ObjectRef() {
    if (object_ && --object_->holders == 0 && object_->deletePending) Destroy(object_);
}

Brush::~Brush() {
    if (pattern) cairo_surface_destroy(pattern);
}

Bitmap::~Bitmap() {
    cairo_surface_destroy(surface);
}

} // namespace gdi
