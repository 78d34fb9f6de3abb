#include "host/rx/AcRxDynamicLinker.h"

#include "host/session/ApplicationList.h"

const AcRxClass* AcRxDynamicLinker::desc() {
    static const AcRxClass description("AcRxDynamicLinker", AcRxObject::desc());
    return &description;
}

AcRxDynamicLinker* AcRxDynamicLinker::cast(const AcRxObject* object) {
    if (!object || !object->isKindOf(desc())) return nullptr;
    return static_cast<AcRxDynamicLinker*>(const_cast<AcRxObject*>(object));
}

bool AcRxDynamicLinker::unlockApplication(void* appId) const {
    host::Application* app = applications.Find(appId);
    if (!app) return false;
    app->SetUnlocked();
    return true;
}

bool AcRxDynamicLinker::registerAppMDIAware(void* appId) const {
    host::Application* app = applications.Find(appId);
    if (!app) return false;
    app->SetMdiAware();
    return true;
}
