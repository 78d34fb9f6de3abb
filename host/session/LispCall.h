#pragma once
// One call of a module's LISP function while it runs: the function code, the argument chain
// (the host's: freed when the call ends, never by the module) and the value set so far with
// the acedRet calls. A function that sets nothing returns nil.

#include "host/ads/Resbuf.h"
#include "host/lisp/LispOutcome.h"

namespace host {

class LispCall {
public:
    LispCall(int code, resbuf* arguments) : code(code), arguments(arguments) {}
    ~LispCall();
    LispCall(const LispCall&) = delete;
    LispCall& operator=(const LispCall&) = delete;

    int Code() const { return code; }
    resbuf* Arguments() const { return arguments; }
    void Return(LispOutcome outcome) { result = std::move(outcome); }
    const LispOutcome& Result() const { return result; }

private:
    int code;
    resbuf* arguments;
    LispOutcome result;
};

} // namespace host
