#include "host/rx/AcRxObject.h"

const AcRxClass* AcRxObject::desc() {
    static const AcRxClass description("AcRxObject", nullptr);
    return &description;
}
