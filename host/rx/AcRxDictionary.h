#pragma once
// A dictionary of named runtime objects. The host's system registry is one; modules look the
// dynamic linker up in it. The dictionary does not own its entries.

#include "host/rx/AcRxObject.h"

#include <map>
#include <string>

class AcRxDictionary : public AcRxObject {
public:
    static const AcRxClass* desc();
    const AcRxClass* isA() const override { return desc(); }

    // Null for a key that is not there.
    AcRxObject* at(const char* key) const;
    // Enters `object` under `key` and answers what was there before, or null.
    AcRxObject* atPut(const char* key, AcRxObject* object);

private:
    std::map<std::string, AcRxObject*, std::less<>> entries;
};

// The host's system registry; null when no host is running.
AcRxDictionary* acrxSysRegistry();
