#include "host/ads/AdsLisp.h"

#include "host/ads/AdsCodes.h"
#include "host/lisp/ChainConverter.h"
#include "host/session/Host.h"

namespace {

host::LispCall* ActiveCall() {
    host::Host* current = host::Host::Current();
    return current ? current->ActiveCall() : nullptr;
}

int Return(host::LispOutcome outcome) {
    host::LispCall* call = ActiveCall();
    if (!call) return RTERROR;
    call->Return(std::move(outcome));
    return RTNORM;
}

} // namespace

extern "C" int acedDefun(const char* name, int functionCode) {
    host::Host* current = host::Host::Current();
    return current ? current->Defun(name, functionCode) : RTERROR;
}

extern "C" int acedUndef(const char* name, int functionCode) {
    host::Host* current = host::Host::Current();
    return current ? current->Undef(name, functionCode) : RTERROR;
}

extern "C" int acedGetFunCode() {
    host::LispCall* call = ActiveCall();
    return call ? call->Code() : RTERROR;
}

extern "C" resbuf* acedGetArgs() {
    host::LispCall* call = ActiveCall();
    return call ? call->Arguments() : nullptr;
}

extern "C" int acedRetVoid() {
    return Return(host::LispOutcome::None());
}

extern "C" int acedRetNil() {
    return Return(host::LispOutcome::Of(host::LispValue::Nil()));
}

extern "C" int acedRetStr(const char* text) {
    if (!text) return RTERROR;
    return Return(host::LispOutcome::Of(host::LispValue::String(text)));
}

extern "C" int acedRetList(const resbuf* chain) {
    if (!ActiveCall()) return RTERROR;
    host::LispValue value;
    if (!host::ChainConverter::ToReturnValue(chain, &value)) return RTERROR;
    return Return(host::LispOutcome::Of(std::move(value)));
}
