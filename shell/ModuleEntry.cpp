#include "shell/ModuleEntry.h"

#include "host/ads/AdsCodes.h"
#include "host/ads/AdsLisp.h"
#include "host/rx/AcRxDynamicLinker.h"
#include "parcel/ParcelDialog.h"
#include "platform/afx/AfxApp.h"
#include "shell/KervDialog.h"

#include <iterator>

ModuleResourceRecord ModuleResources;

namespace {

struct FunctionRow {
    const char* name;
    int (*handler)();
};

// The index of a row is its function code.
constexpr FunctionRow FunctionTable[] = {{"KERVDIALOG", KervDialog}};
constexpr int FunctionCount = static_cast<int>(std::size(FunctionTable));

} // namespace

AcRx::AppRetCode EntryPoint(AcRx::AppMsgCode message, void* appId) {
    switch (message) {
    case AcRx::kInitAppMsg:
        // The linker is fetched anew for each call; neither answer matters here.
        acrxDynamicLinker->unlockApplication(appId);
        acrxDynamicLinker->registerAppMDIAware(appId);
        break;
    // The function goes only with the drawing, not with this message.
    case AcRx::kUnloadAppMsg: break;
    case AcRx::kLoadDwgMsg: RegisterFunctions(); break;
    case AcRx::kUnloadDwgMsg: UnregisterFunctions(); break;
    case AcRx::kInvkSubrMsg: DispatchFunction(); break;
    default: break;
    }
    return AcRx::kRetOK;
}

int RegisterFunctions() {
    for (int code = 0; code < FunctionCount; ++code)
        if (acedDefun(FunctionTable[code].name, code) == 0) return RTERROR;
    return RTNORM;
}

int UnregisterFunctions() {
    acedUndef(FunctionTable[0].name, 0);
    return RTNORM;
}

int DispatchFunction() {
    // LISP gets no value unless the handler sets one.
    acedRetVoid();
    const int code = acedGetFunCode();
    if (code < 0 || code >= FunctionCount) return RTERROR;
    return FunctionTable[code].handler() == RTNORM ? RSRSLT : RSERR;
}

int AttachModule(HINSTANCE instance) {
    if (ModuleResources.attached) return 0;
    ModuleResources.attached = instance != nullptr;
    if (ModuleResources.attached) {
        ModuleResources.defaultResources = AfxGetResourceHandle();
        ModuleResources.moduleResources = instance;
        // What the module's resource script would build in: the dialog's template.
        ParcelDialog::RegisterTemplate(instance);
    }
    return ModuleResources.attached;
}

void DetachModule() {
    ModuleResources.attached = 0;
}
