#include "host/doc/AcApDocManager.h"

#include "host/session/Host.h"
#include "platform/afx/AfxApp.h"

const AcRxClass* AcApDocManager::desc() {
    static const AcRxClass description("AcApDocManager", AcRxObject::desc());
    return &description;
}

void AcApDocManager::pushResourceHandle(HINSTANCE handle) {
    outerHandles.push_back(AfxGetResourceHandle());
    AfxSetResourceHandle(handle);
}

void AcApDocManager::popResourceHandle() {
    if (outerHandles.empty()) return;
    AfxSetResourceHandle(outerHandles.back());
    outerHandles.pop_back();
}

HINSTANCE AcApDocManager::currentResourceHandle() const {
    return AfxGetResourceHandle();
}

AcApDocManager* acDocManagerPtr() {
    host::Host* current = host::Host::Current();
    return current ? &current->DocManager() : nullptr;
}
