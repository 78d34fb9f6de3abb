#pragma once
// Gives a variable a value for the life of a scope and puts the old one back on every way out.

namespace host {

template <typename T> class ScopedValue {
public:
    ScopedValue(T& slot, T value) : slot(slot), outer(slot) { slot = value; }
    ~ScopedValue() { slot = outer; }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

private:
    T& slot;
    T outer;
};

} // namespace host
