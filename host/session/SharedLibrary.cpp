#include "host/session/SharedLibrary.h"

#include <dlfcn.h>

namespace host {

std::unique_ptr<SharedLibrary> SharedLibrary::Open(const std::string& path, std::string* error) {
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const char* reason = dlerror();
        *error = reason ? reason : "cannot be loaded";
        return nullptr;
    }
    return std::unique_ptr<SharedLibrary>(new SharedLibrary(handle));
}

SharedLibrary::~SharedLibrary() {
    dlclose(handle);
}

void* SharedLibrary::Symbol(const char* name) const {
    return dlsym(handle, name);
}

} // namespace host
