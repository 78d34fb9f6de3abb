#pragma once
// Evaluates LISP forms for the host. Numbers, strings, nil and T evaluate to themselves, a
// symbol to the value setq gave it (nil if none). A list calls: quote, list, setq and progn are
// built in; any other name must be a function that a module defined. The first error ends the
// whole form; a value that a function did not give (acedRetVoid) is nil where one is needed.

#include "host/lisp/LispOutcome.h"
#include "host/lisp/LispValue.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

class Host;

class LispEvaluator {
public:
    explicit LispEvaluator(Host& host) : host(host) {}

    LispOutcome Evaluate(const LispValue& form);

private:
    LispOutcome EvaluateCall(const LispValue& form);
    // The outcome of the first form that failed, if one did.
    std::optional<LispOutcome> EvaluateEach(const std::vector<LispValue>& forms,
                                            std::vector<LispValue>* values);
    LispOutcome Quote(const std::vector<LispValue>& arguments);
    LispOutcome SetQ(const std::vector<LispValue>& arguments);
    LispOutcome Progn(const std::vector<LispValue>& forms);

    Host& host;
    std::map<std::string, LispValue, std::less<>> variables;
};

} // namespace host
