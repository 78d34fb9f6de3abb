#pragma once
// Root of the framework's classes: only a virtual destructor, so that owners can delete
// any framework object through its base.

class CObject {
public:
    virtual ~CObject() = default;

protected:
    CObject() = default;
};
