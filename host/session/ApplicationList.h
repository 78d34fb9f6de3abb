#pragma once
// The modules the host has loaded, in load order, and the one that is handling a message at
// the moment: acedDefun gives the functions it defines to that module.

#include "host/session/Application.h"

#include <memory>
#include <string>
#include <vector>

namespace host {

class ApplicationList {
public:
    // Opens a module file and checks its exports. Null with a reason when the file is missing,
    // cannot be loaded, exports no acrxEntryPoint or speaks another interface version. The
    // module has been told nothing yet.
    Application* Load(const std::string& path, std::string* error);
    Application& Add(std::unique_ptr<Application> application);
    // Removes and hands back the module loaded last; null when there is none.
    std::unique_ptr<Application> TakeLast();

    Application* Find(const void* appId) const;
    const std::vector<std::unique_ptr<Application>>& All() const { return applications; }

    // Sends one message; the module is the active one until its entry point returns.
    AcRx::AppRetCode Send(Application& application, AcRx::AppMsgCode message);
    Application* Active() const { return active; }

private:
    std::vector<std::unique_ptr<Application>> applications;
    Application* active = nullptr;
};

} // namespace host
