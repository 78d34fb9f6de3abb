// The KERVGRID module's exports and its library attach and detach. Everything the host asks
// of the module goes through acrxEntryPoint to the shell.

#include "host/rx/AcRx.h"
#include "parcel/CallState.h"
#include "shell/ModuleEntry.h"

#include <dlfcn.h>
#include <string>

namespace {

// Stands for the module's instance handle: an address inside this library.
char instanceAnchor;

HINSTANCE ModuleInstance() {
    return reinterpret_cast<HINSTANCE>(&instanceAnchor);
}

// The library's own file name, as the system's query gives it: cut at 259 characters.
std::string OwnFileName() {
    Dl_info info{};
    if (!dladdr(&instanceAnchor, &info) || !info.dli_fname) return {};
    return std::string(info.dli_fname).substr(0, 259);
}

__attribute__((constructor)) void ProcessAttach() {
    // A failed attach isn't reported: the library stays loaded.
    AttachModule(ModuleInstance());
    ModulePath = OwnFileName();
}

__attribute__((destructor)) void ProcessDetach() {
    DetachModule();
}

} // namespace

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* appId) {
    return EntryPoint(message, appId);
}

extern "C" int acrxGetApiVersion() {
    return ACRX_API_VERSION;
}
