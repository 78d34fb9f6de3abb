#pragma once
// The running host: the modules it loaded, the functions they defined, the drawing, the call
// in progress and the objects modules reach through the host's API (system registry, dynamic
// linker, document manager, main and document windows). One host runs at a time; the API's
// free functions find it through Current() and refuse to work when there is none.
//
// While it runs, the window system's events (message boxes, beeps) go to its event log.
//
// Application messages go out as a CAD host sends them: kInitAppMsg and kLoadDwgMsg when a
// module is loaded (the drawing is open from the start), kInvkSubrMsg for each call of a
// function it defined, and on shutdown kUnloadDwgMsg to every module, then kUnloadAppMsg,
// last loaded first.

#include "host/doc/AcApDocManager.h"
#include "host/lisp/LispOutcome.h"
#include "host/rx/AcRxDictionary.h"
#include "host/rx/AcRxDynamicLinker.h"
#include "host/session/ApplicationList.h"
#include "host/session/DefinedFunctions.h"
#include "host/session/Drawing.h"
#include "host/session/EventLog.h"
#include "host/session/LispCall.h"
#include "platform/base/WinTypes.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class Host {
public:
    Host(EventLog& events, Drawing drawing);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    static Host* Current();

    // Loads a module file; null with a reason when it can't be (see ApplicationList::Load).
    Application* Load(const std::string& path, std::string* error);
    // Takes a module that lives in this process, as a loaded file would be taken.
    Application& Adopt(std::unique_ptr<Application> application);
    void UnloadAll();

    // Calls a function that a module defined. An unknown name and an argument with no chain
    // form are errors; what the module returned is the outcome.
    LispOutcome Call(std::string_view name, const std::vector<LispValue>& arguments);

    // The host side of acedDefun and acedUndef: RTNORM or RTERROR.
    int Defun(const char* name, int code);
    int Undef(const char* name, int code);
    const DefinedFunctions& Functions() const { return functions; }
    // The call in progress; null outside of one.
    LispCall* ActiveCall() const { return activeCall; }

    EventLog& Events() { return events; }
    const Drawing& CurrentDrawing() const { return drawing; }
    AcRxDictionary& Registry() { return registry; }
    AcApDocManager& DocManager() { return documents; }

    HWND MainWindow() const { return mainWindow; }
    HWND DocWindow() const { return docWindow; }
    void SetWindows(HWND main, HWND document) { mainWindow = main, docWindow = document; }
    // The owner of the host's own boxes and dialogs: the active window (a module's dialog while
    // it runs, which must not take input meanwhile), else the main window.
    HWND DialogOwner() const;

private:
    Application& Start(Application& application);

    EventLog& events;
    Drawing drawing;
    ApplicationList applications;
    DefinedFunctions functions;
    AcRxDynamicLinker linker{applications};
    AcRxDictionary registry;
    AcApDocManager documents;
    LispCall* activeCall = nullptr;
    HWND mainWindow = nullptr;
    HWND docWindow = nullptr;
    std::function<void(const std::string&, const std::string&)> outerEventHook;
};

} // namespace host
