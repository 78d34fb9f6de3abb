#include "tests/host/TestModule.h"

#include "host/ads/AdsLisp.h"
#include "host/rx/AcRxDynamicLinker.h"

#include <cassert>

namespace {
TestModule* running = nullptr;
}

TestModule::TestModule() {
    assert(!running);
    running = this;
}

TestModule::~TestModule() {
    running = nullptr;
}

void TestModule::Define(std::string name, int code, std::function<void()> handler) {
    functions.push_back({std::move(name), code, std::move(handler)});
}

host::Application& TestModule::Start(host::Host& host) {
    return host.Adopt(std::make_unique<host::Application>(&TestModule::Entry, nullptr));
}

AcRx::AppRetCode TestModule::Entry(AcRx::AppMsgCode message, void* appId) {
    TestModule& self = *running;
    self.messages.push_back(message);
    self.appId = appId;
    switch (message) {
    case AcRx::kInitAppMsg:
        acrxDynamicLinker->unlockApplication(appId);
        acrxDynamicLinker->registerAppMDIAware(appId);
        break;
    case AcRx::kLoadDwgMsg:
        for (const Function& f : self.functions) acedDefun(f.name.c_str(), f.code);
        break;
    case AcRx::kUnloadDwgMsg:
        for (const Function& f : self.functions) acedUndef(f.name.c_str(), f.code);
        break;
    case AcRx::kInvkSubrMsg: {
        const int code = acedGetFunCode();
        for (const Function& f : self.functions)
            if (f.code == code) f.handler();
        break;
    }
    case AcRx::kUnloadAppMsg: break;
    }
    return AcRx::kRetOK;
}
