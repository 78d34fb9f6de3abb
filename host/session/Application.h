#pragma once
// A module the host has loaded: its entry point, the library it lives in, and what it declared
// about itself to the dynamic linker. The object's address is the module's appId.

#include "host/rx/AcRx.h"
#include "host/session/SharedLibrary.h"

#include <memory>

namespace host {

using EntryPoint = AcRx::AppRetCode (*)(AcRx::AppMsgCode message, void* appId);

class Application {
public:
    // `library` may be null for a module linked into the host's own process.
    Application(EntryPoint entry, std::unique_ptr<SharedLibrary> library)
        : entry(entry), library(std::move(library)) {}
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void* Id() { return this; }
    AcRx::AppRetCode Receive(AcRx::AppMsgCode message) { return entry(message, Id()); }

    bool Unlocked() const { return unlocked; }
    bool MdiAware() const { return mdiAware; }
    void SetUnlocked() { unlocked = true; }
    void SetMdiAware() { mdiAware = true; }

private:
    EntryPoint entry;
    std::unique_ptr<SharedLibrary> library;
    bool unlocked = false;
    bool mdiAware = false;
};

} // namespace host
