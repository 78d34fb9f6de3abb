#include "host/session/Host.h"

#include "host/ads/AdsCodes.h"
#include "host/lisp/ChainConverter.h"
#include "host/lisp/UpperCase.h"
#include "host/session/ScopedValue.h"
#include "platform/user/User.h"
#include "platform/user/WindowManager.h"

#include <cassert>
#include <utility>

namespace host {

namespace {
Host* current = nullptr;
}

Host::Host(EventLog& events, Drawing drawing) : events(events), drawing(std::move(drawing)) {
    assert(!current && "only one Host runs at a time");
    current = this;
    registry.atPut(ACRX_DYNAMIC_LINKER, &linker);
    outerEventHook = std::exchange(plat::WindowManager::Get().onEvent,
                                   [this](const std::string& kind, const std::string& text) {
                                       this->events.Platform(kind, text);
                                   });
}

Host::~Host() {
    UnloadAll();
    plat::WindowManager::Get().onEvent = std::move(outerEventHook);
    current = nullptr;
}

Host* Host::Current() {
    return current;
}

Application* Host::Load(const std::string& path, std::string* error) {
    Application* application = applications.Load(path, error);
    return application ? &Start(*application) : nullptr;
}

Application& Host::Adopt(std::unique_ptr<Application> application) {
    return Start(applications.Add(std::move(application)));
}

Application& Host::Start(Application& application) {
    applications.Send(application, AcRx::kInitAppMsg);
    applications.Send(application, AcRx::kLoadDwgMsg);
    return application;
}

void Host::UnloadAll() {
    const auto& all = applications.All();
    for (auto it = all.rbegin(); it != all.rend(); ++it)
        applications.Send(**it, AcRx::kUnloadDwgMsg);
    while (std::unique_ptr<Application> last = applications.TakeLast()) {
        applications.Send(*last, AcRx::kUnloadAppMsg);
        functions.UndefineAll(*last);
    }
}

LispOutcome Host::Call(std::string_view name, const std::vector<LispValue>& arguments) {
    const DefinedFunction* function = functions.Find(name);
    if (!function) return LispOutcome::Failure("no function definition: " + UpperCase(name));
    // Copied: the module may undefine the function while it runs.
    const DefinedFunction target = *function;
    resbuf* chain = nullptr;
    if (!arguments.empty()) {
        std::string error;
        chain = ChainConverter::ToChain(arguments, &error);
        if (!chain) return LispOutcome::Failure(error);
    }
    LispCall call(target.code, chain);
    ScopedValue<LispCall*> scope(activeCall, &call);
    applications.Send(*target.application, AcRx::kInvkSubrMsg);
    return call.Result();
}

HWND Host::DialogOwner() const {
    HWND active = GetActiveWindow();
    return active ? active : mainWindow;
}

int Host::Defun(const char* name, int code) {
    Application* application = applications.Active();
    if (!name || !*name || code < 0 || !application) return RTERROR;
    functions.Define(name, *application, code);
    return RTNORM;
}

int Host::Undef(const char* name, int code) {
    Application* application = applications.Active();
    if (!name || !application) return RTERROR;
    return functions.Undefine(name, *application, code) ? RTNORM : RTERROR;
}

} // namespace host
