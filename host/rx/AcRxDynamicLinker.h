#pragma once
// The host's dynamic linker as modules see it: found in the system registry under
// ACRX_DYNAMIC_LINKER, it takes a module's declarations about itself during kInitAppMsg.

#include "host/rx/AcRxDictionary.h"

namespace host {
class ApplicationList;
}

#define ACRX_DYNAMIC_LINKER "DynamicLinker"
#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))

class AcRxDynamicLinker : public AcRxObject {
public:
    explicit AcRxDynamicLinker(host::ApplicationList& applications) : applications(applications) {}

    static const AcRxClass* desc();
    const AcRxClass* isA() const override { return desc(); }
    // The object itself when it is a linker, else null.
    static AcRxDynamicLinker* cast(const AcRxObject* object);

    // Both answer false for an id that names no loaded module.
    bool unlockApplication(void* appId) const;
    bool registerAppMDIAware(void* appId) const;

private:
    host::ApplicationList& applications;
};
