#include "host/session/ApplicationList.h"

#include "host/session/ScopedValue.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace host {

Application* ApplicationList::Load(const std::string& path, std::string* error) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        *error = "module " + path + " does not exist";
        return nullptr;
    }
    std::string reason;
    std::unique_ptr<SharedLibrary> library = SharedLibrary::Open(path, &reason);
    if (!library) {
        *error = "cannot load module " + path + ": " + reason;
        return nullptr;
    }
    auto entry = reinterpret_cast<EntryPoint>(library->Symbol("acrxEntryPoint"));
    if (!entry) {
        *error = "module " + path + " exports no acrxEntryPoint";
        return nullptr;
    }
    if (auto version = reinterpret_cast<int (*)()>(library->Symbol("acrxGetApiVersion"))) {
        if (const int v = version(); v != ACRX_API_VERSION) {
            char text[96];
            std::snprintf(text, sizeof text, " is built for interface version 0x%x, not 0x%x", v,
                          ACRX_API_VERSION);
            *error = "module " + path + text;
            return nullptr;
        }
    }
    return &Add(std::make_unique<Application>(entry, std::move(library)));
}

Application& ApplicationList::Add(std::unique_ptr<Application> application) {
    applications.push_back(std::move(application));
    return *applications.back();
}

std::unique_ptr<Application> ApplicationList::TakeLast() {
    if (applications.empty()) return nullptr;
    std::unique_ptr<Application> last = std::move(applications.back());
    applications.pop_back();
    return last;
}

Application* ApplicationList::Find(const void* appId) const {
    auto it = std::find_if(applications.begin(), applications.end(),
                           [&](const auto& app) { return app->Id() == appId; });
    return it == applications.end() ? nullptr : it->get();
}

AcRx::AppRetCode ApplicationList::Send(Application& application, AcRx::AppMsgCode message) {
    ScopedValue<Application*> scope(active, &application);
    return application.Receive(message);
}

} // namespace host
