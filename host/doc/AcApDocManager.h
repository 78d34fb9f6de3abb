#pragma once
// The host's document manager, as far as modules use it: a stack of resource handles, so that
// a module's dialog templates are found while one of its calls runs.

#include "host/rx/AcRxObject.h"
#include "platform/base/WinTypes.h"

#include <vector>

class AcApDocManager : public AcRxObject {
public:
    static const AcRxClass* desc();
    const AcRxClass* isA() const override { return desc(); }

    void pushResourceHandle(HINSTANCE handle);
    // Popping an empty stack does nothing: the host's own resources stay in force.
    void popResourceHandle();
    // The handle on top of the stack; null when nothing was pushed.
    HINSTANCE currentResourceHandle() const;

private:
    std::vector<HINSTANCE> resourceHandles;
};

// The host's document manager; null when no host is running.
AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
