#include "host/doc/AcApDocManager.h"

#include "host/session/Host.h"

const AcRxClass* AcApDocManager::desc() {
    static const AcRxClass description("AcApDocManager", AcRxObject::desc());
    return &description;
}

void AcApDocManager::pushResourceHandle(HINSTANCE handle) {
    resourceHandles.push_back(handle);
}

void AcApDocManager::popResourceHandle() {
    if (!resourceHandles.empty()) resourceHandles.pop_back();
}

HINSTANCE AcApDocManager::currentResourceHandle() const {
    return resourceHandles.empty() ? nullptr : resourceHandles.back();
}

AcApDocManager* acDocManagerPtr() {
    host::Host* current = host::Host::Current();
    return current ? &current->DocManager() : nullptr;
}
