#pragma once
// A module that lives in the test program: it declares itself to the dynamic linker on
// kInitAppMsg, defines its functions on kLoadDwgMsg, takes them away on kUnloadDwgMsg, runs
// the handler of the called function on kInvkSubrMsg, and records every message. One exists at
// a time, since an entry point is a plain function.

#include "host/rx/AcRx.h"
#include "host/session/Host.h"

#include <functional>
#include <string>
#include <vector>

class TestModule {
public:
    TestModule();
    ~TestModule();

    void Define(std::string name, int code, std::function<void()> handler);
    // Hands the module to the host, which sends kInitAppMsg and kLoadDwgMsg.
    host::Application& Start(host::Host& host);

    const std::vector<AcRx::AppMsgCode>& Messages() const { return messages; }
    void* AppId() const { return appId; }

private:
    struct Function {
        std::string name;
        int code;
        std::function<void()> handler;
    };

    static AcRx::AppRetCode Entry(AcRx::AppMsgCode message, void* appId);

    std::vector<Function> functions;
    std::vector<AcRx::AppMsgCode> messages;
    void* appId = nullptr;
};
