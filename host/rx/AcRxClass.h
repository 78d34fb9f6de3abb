#pragma once
// Class description of the host's runtime objects: a name and the description of the base
// class, which is all that a checked cast needs.

class AcRxClass {
public:
    AcRxClass(const char* name, const AcRxClass* parent) : className(name), parentClass(parent) {}
    AcRxClass(const AcRxClass&) = delete;
    AcRxClass& operator=(const AcRxClass&) = delete;

    const char* name() const { return className; }
    bool isDerivedFrom(const AcRxClass* other) const;

private:
    const char* className;
    const AcRxClass* parentClass;
};
