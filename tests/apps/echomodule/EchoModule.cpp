// A module for testing the host: its LISP functions hand their arguments back, raise the
// host's events or return each kind of result. It links nothing of the host: cadhost supplies
// the API when it loads the module. With ECHO_MODULE_LOG set, it appends the name of every
// application message it receives to that file.

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/ads/AdsLisp.h"
#include "host/ads/AdsServices.h"
#include "host/rx/AcRx.h"
#include "host/rx/AcRxDynamicLinker.h"

#include <cstdio>
#include <cstdlib>

namespace {

const char* FirstString() {
    const resbuf* args = acedGetArgs();
    return args && args->restype == RTSTR ? args->resval.rstring : nullptr;
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
    {"ECHO", 10, Echo},         {"ALERT", 20, Alert},     {"FAIL", 30, Fail},
    {"NILVALUE", 40, NilValue}, {"NOVALUE", 50, NoValue}, {"UNSET", 60, Unset},
    {"GETVAR", 70, GetVar},     {"CODES", 80, Codes},
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
