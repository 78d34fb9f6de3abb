// A module for testing the host: its LISP functions hand their arguments back, raise the
// host's events, return each kind of result, or open the windows a module opens (its own
// dialog from a template, the framework's message box, the host's file dialog). It links
// nothing of the host or the window system: cadhost supplies both when it loads the module.
// With ECHO_MODULE_LOG set, it appends the name of every application message it receives to
// that file.

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/ads/AdsLisp.h"
#include "host/ads/AdsServices.h"
#include "host/doc/AcApDocManager.h"
#include "host/rx/AcRx.h"
#include "host/rx/AcRxDynamicLinker.h"
#include "platform/afx/AfxApp.h"
#include "tests/apps/echomodule/EchoDialog.h"

#include <cstdio>
#include <cstdlib>

namespace {

const char* FirstString() {
    const resbuf* args = acedGetArgs();
    return args && args->restype == RTSTR ? args->resval.rstring : nullptr;
}

// The argument at `index` as a string or an integer; the fallback when it is missing or of
// another type.
const char* StringAt(int index, const char* fallback) {
    const resbuf* node = acedGetArgs();
    for (int i = 0; node && i < index; ++i) node = node->rbnext;
    return node && node->restype == RTSTR ? node->resval.rstring : fallback;
}
int IntegerAt(int index, int fallback) {
    const resbuf* node = acedGetArgs();
    for (int i = 0; node && i < index; ++i) node = node->rbnext;
    if (!node) return fallback;
    if (node->restype == RTSHORT) return node->resval.rint;
    return node->restype == RTLONG ? node->resval.rlong : fallback;
}

// The module's resources are registered under this handle.
HINSTANCE ModuleHandle() {
    static char anchor;
    return reinterpret_cast<HINSTANCE>(&anchor);
}

// The module's resources are the framework's for as long as the object lives.
class ModuleResources {
public:
    ModuleResources() { acDocManager->pushResourceHandle(ModuleHandle()); }
    ~ModuleResources() { acDocManager->popResourceHandle(); }
    ModuleResources(const ModuleResources&) = delete;
    ModuleResources& operator=(const ModuleResources&) = delete;
};

void ReturnList(resbuf* chain) {
    acedRetList(chain);
    acutRelRb(chain);
}

// (DIALOG): the module's dialog, owned by the host's main window. Returns the dialog's result,
// the name and the list entry it held at OK, and whether the main window owned it.
void Dialog() {
    ModuleResources resources;
    EchoDialog dialog(CWnd::FromHandle(adsw_acadMainWnd()));
    const auto result = static_cast<int>(dialog.DoModal());
    const bool ownedByMain = dialog.Owner() && dialog.Owner() == adsw_acadMainWnd();
    ReturnList(acutBuildList(RTSHORT, result, RTSTR, dialog.Name().c_str(), RTSTR,
                             dialog.Choice().c_str(), ownedByMain ? RTT : RTNIL, 0));
}

// (ASK TEXT TYPE): the framework's message box; returns the button pressed.
void Ask() {
    const int answer = AfxMessageBox(StringAt(0, ""), static_cast<UINT>(IntegerAt(1, MB_OK)));
    ReturnList(acutBuildList(RTSHORT, answer, 0));
}

// (GETFILE TITLE DEFAULT EXT FLAGS): the host's file dialog; the path, or the result code when
// there is none.
void GetFile() {
    resbuf path{};
    const int result = acedGetFileD(StringAt(0, nullptr), StringAt(1, nullptr),
                                    StringAt(2, nullptr), IntegerAt(3, 0), &path);
    if (result == RTNORM && path.restype == RTSTR) {
        acedRetStr(path.resval.rstring);
        std::free(path.resval.rstring);
        return;
    }
    ReturnList(acutBuildList(RTLONG, result, 0));
}

void BeepOnTimer(HWND, UINT, UINT_PTR, DWORD) {
    Beep(440, 20);
}

// (BEEPER PERIOD): a message box while a timer beeps every PERIOD milliseconds.
void Beeper() {
    const UINT_PTR timer = SetTimer(nullptr, 0, static_cast<UINT>(IntegerAt(0, 100)), BeepOnTimer);
    AfxMessageBox("Beeping", MB_OK);
    KillTimer(nullptr, timer);
    acedRetVoid();
}

// The arguments as they came: the host decides how the chain reads as a value.
void Echo() {
    acedRetList(acedGetArgs());
}

void Alert() {
    acedAlert(FirstString() ? FirstString() : "");
    acedRetVoid();
}

void Fail() {
    acdbFail(FirstString() ? FirstString() : "");
    acedRetVoid();
}

void NilValue() {
    acedRetNil();
}
void NoValue() {
    acedRetVoid();
}
void Unset() {}

void GetVar() {
    resbuf value{};
    if (acedGetVar(FirstString(), &value) != RTNORM || value.restype != RTSTR) {
        acedRetNil();
        return;
    }
    acedRetStr(value.resval.rstring);
    std::free(value.resval.rstring);
}

// The restype of every node of the argument chain, as a list of integers.
void Codes() {
    const resbuf* args = acedGetArgs();
    if (!args) {
        acedRetStr("no chain");
        return;
    }
    resbuf* codes = nullptr;
    resbuf** tail = &codes;
    for (const resbuf* node = args; node; node = node->rbnext) {
        *tail = acutBuildList(RTSHORT, static_cast<int>(node->restype), 0);
        if (!*tail) break;
        tail = &(*tail)->rbnext;
    }
    acedRetList(codes);
    acutRelRb(codes);
}

struct Function {
    const char* name;
    int code;
    void (*handler)();
};

// Codes that are not the table's indexes, so that a host that mixed them up would be caught.
const Function functions[] = {
    {"ECHO", 10, Echo},         {"ALERT", 20, Alert},      {"FAIL", 30, Fail},
    {"NILVALUE", 40, NilValue}, {"NOVALUE", 50, NoValue},  {"UNSET", 60, Unset},
    {"GETVAR", 70, GetVar},     {"CODES", 80, Codes},      {"DIALOG", 90, Dialog},
    {"ASK", 100, Ask},          {"GETFILE", 110, GetFile}, {"BEEPER", 120, Beeper},
};

void Log(const char* message) {
    if (const char* path = std::getenv("ECHO_MODULE_LOG")) {
        if (FILE* log = std::fopen(path, "a")) {
            std::fprintf(log, "%s\n", message);
            std::fclose(log);
        }
    }
}

} // namespace

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* appId) {
    switch (message) {
    case AcRx::kInitAppMsg:
        RegisterDialogResource(ModuleHandle(), EchoDialog::TemplateId, EchoDialog::Template());
        Log(acrxDynamicLinker->unlockApplication(appId) &&
                    acrxDynamicLinker->registerAppMDIAware(appId)
                ? "init"
                : "init refused");
        break;
    case AcRx::kLoadDwgMsg:
        Log("load drawing");
        for (const Function& f : functions) acedDefun(f.name, f.code);
        break;
    case AcRx::kInvkSubrMsg: {
        Log("invoke");
        const int code = acedGetFunCode();
        for (const Function& f : functions)
            if (f.code == code) f.handler();
        break;
    }
    case AcRx::kUnloadDwgMsg:
        Log("unload drawing");
        for (const Function& f : functions) acedUndef(f.name, f.code);
        break;
    case AcRx::kUnloadAppMsg: Log("unload"); break;
    }
    return AcRx::kRetOK;
}

extern "C" int acrxGetApiVersion() {
    return ACRX_API_VERSION;
}
