#pragma once
// Application messages and the entry points every module exports, under the host's names.

struct AcRx {
    // What the host tells a module through its acrxEntryPoint.
    enum AppMsgCode {
        kInitAppMsg = 1,
        kUnloadAppMsg = 2,
        kLoadDwgMsg = 3,
        kUnloadDwgMsg = 4,
        kInvkSubrMsg = 5,
    };
    enum AppRetCode {
        kRetOK = 0,
        kRetError = 3,
    };
};

// The interface version this host speaks; a module's acrxGetApiVersion must answer it.
#define ACRX_API_VERSION 0x100000

// Exported with C linkage by every module. appId identifies the module towards the dynamic
// linker for the life of the module.
extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* appId);
extern "C" int acrxGetApiVersion();
