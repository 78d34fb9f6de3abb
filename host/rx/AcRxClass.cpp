#include "host/rx/AcRxClass.h"

bool AcRxClass::isDerivedFrom(const AcRxClass* other) const {
    for (const AcRxClass* c = this; c; c = c->parentClass)
        if (c == other) return true;
    return false;
}
