#include "host/rx/AcRxDictionary.h"

#include "host/session/Host.h"

const AcRxClass* AcRxDictionary::desc() {
    static const AcRxClass description("AcRxDictionary", AcRxObject::desc());
    return &description;
}

AcRxObject* AcRxDictionary::at(const char* key) const {
    if (!key) return nullptr;
    auto it = entries.find(std::string_view(key));
    return it == entries.end() ? nullptr : it->second;
}

AcRxObject* AcRxDictionary::atPut(const char* key, AcRxObject* object) {
    if (!key) return nullptr;
    AcRxObject*& slot = entries[key];
    AcRxObject* previous = slot;
    slot = object;
    return previous;
}

AcRxDictionary* acrxSysRegistry() {
    host::Host* current = host::Host::Current();
    return current ? &current->Registry() : nullptr;
}
