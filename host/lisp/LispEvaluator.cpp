#include "host/lisp/LispEvaluator.h"

#include "host/lisp/LispPrinter.h"
#include "host/session/Host.h"

namespace host {

LispOutcome LispEvaluator::Evaluate(const LispValue& form) {
    switch (form.Type()) {
    case LispType::Symbol: {
        auto it = variables.find(form.Text());
        return LispOutcome::Of(it == variables.end() ? LispValue::Nil() : it->second);
    }
    case LispType::List: return EvaluateCall(form);
    default: return LispOutcome::Of(form);
    }
}

LispOutcome LispEvaluator::EvaluateCall(const LispValue& form) {
    const LispValue& head = form.Items().front();
    if (head.Type() != LispType::Symbol)
        return LispOutcome::Failure("bad function: " + LispPrinter::Print(head));
    const std::vector<LispValue> arguments(form.Items().begin() + 1, form.Items().end());
    const std::string& name = head.Text();
    if (name == "QUOTE") return Quote(arguments);
    if (name == "SETQ") return SetQ(arguments);
    if (name == "PROGN") return Progn(arguments);
    std::vector<LispValue> values;
    if (auto failure = EvaluateEach(arguments, &values)) return *failure;
    if (name == "LIST") return LispOutcome::Of(LispValue::List(std::move(values)));
    return host.Call(name, values);
}

std::optional<LispOutcome> LispEvaluator::EvaluateEach(const std::vector<LispValue>& forms,
                                                       std::vector<LispValue>* values) {
    for (const LispValue& form : forms) {
        LispOutcome outcome = Evaluate(form);
        if (outcome.Failed()) return outcome;
        values->push_back(std::move(outcome.value));
    }
    return std::nullopt;
}

LispOutcome LispEvaluator::Quote(const std::vector<LispValue>& arguments) {
    if (arguments.empty()) return LispOutcome::Failure("too few arguments");
    if (arguments.size() > 1) return LispOutcome::Failure("too many arguments");
    return LispOutcome::Of(arguments.front());
}

LispOutcome LispEvaluator::SetQ(const std::vector<LispValue>& arguments) {
    LispValue last;
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        const LispValue& target = arguments[i];
        if (target.Type() != LispType::Symbol)
            return LispOutcome::Failure("bad argument type: " + LispPrinter::Print(target));
        if (i + 1 == arguments.size()) return LispOutcome::Failure("too few arguments");
        LispOutcome outcome = Evaluate(arguments[i + 1]);
        if (outcome.Failed()) return outcome;
        variables[target.Text()] = outcome.value;
        last = std::move(outcome.value);
    }
    return LispOutcome::Of(std::move(last));
}

LispOutcome LispEvaluator::Progn(const std::vector<LispValue>& forms) {
    LispOutcome last = LispOutcome::Of(LispValue::Nil());
    for (const LispValue& form : forms) {
        last = Evaluate(form);
        if (last.Failed()) break;
    }
    return last;
}

} // namespace host
