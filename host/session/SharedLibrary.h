#pragma once
// A shared library opened with dlopen for as long as the object lives.

#include <memory>
#include <string>

namespace host {

class SharedLibrary {
public:
    // All symbols are bound at once, so a library that needs a host function this host lacks is
    // refused here, with the loader's reason, rather than failing in the middle of a call.
    static std::unique_ptr<SharedLibrary> Open(const std::string& path, std::string* error);
    ~SharedLibrary();
    SharedLibrary(const SharedLibrary&) = delete;
    SharedLibrary& operator=(const SharedLibrary&) = delete;

    // Null when the library exports no such symbol.
    void* Symbol(const char* name) const;

private:
    explicit SharedLibrary(void* handle) : handle(handle) {}

    void* handle;
};

} // namespace host
