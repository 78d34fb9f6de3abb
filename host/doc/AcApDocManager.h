#pragma once
// The host's document manager, as far as modules use it: a stack of resource handles, so that
// a module's dialog templates are found while one of its calls runs. The handle on top is the
// framework's current resource handle (AfxGetResourceHandle), where dialogs look for their
// templates.

#include "host/rx/AcRxObject.h"
#include "platform/base/WinTypes.h"

#include <vector>

class AcApDocManager : public AcRxObject {
public:
    static const AcRxClass* desc();
    const AcRxClass* isA() const override { return desc(); }

    void pushResourceHandle(HINSTANCE handle);
    // Puts back the handle that was in force before the last push. Popping an empty stack does
    // nothing: the host's own resources stay in force.
    void popResourceHandle();
    // The framework's current resource handle.
    HINSTANCE currentResourceHandle() const;

private:
    std::vector<HINSTANCE> outerHandles; // in force before each push
};

// The host's document manager; null when no host is running.
AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
