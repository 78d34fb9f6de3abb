#pragma once
// Root of the host's runtime objects. Each class answers its description, so that an object
// fetched from the registry can be cast by description rather than by the language's RTTI.

#include "host/rx/AcRxClass.h"

class AcRxObject {
public:
    virtual ~AcRxObject() = default;

    static const AcRxClass* desc();
    virtual const AcRxClass* isA() const { return desc(); }
    bool isKindOf(const AcRxClass* description) const { return isA()->isDerivedFrom(description); }
};
