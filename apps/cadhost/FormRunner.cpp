#include "apps/cadhost/FormRunner.h"

#include "host/lisp/LispPrinter.h"
#include "host/session/Host.h"

#include <string>

int FormRunner::RunAll(const std::vector<LispSource>& sources) {
    std::vector<host::LispValue> forms;
    for (const LispSource& source : sources) {
        host::LispReader reader(source.text);
        host::LispValue form;
        host::ReadStatus status;
        while ((status = reader.Next(&form)) == host::ReadStatus::Form) forms.push_back(form);
        if (status != host::ReadStatus::End) {
            ReportUnreadable(source.name, reader);
            return 2;
        }
    }
    for (const host::LispValue& form : forms) Evaluate(form);
    return 0;
}

int FormRunner::RunInteractive(std::istream& in) {
    int status = 0;
    std::string pending; // lines of a form that is not complete yet
    std::string line;
    for (;;) {
        if (pending.empty()) out << "Command: " << std::flush;
        if (!std::getline(in, line)) break;
        pending += line;
        pending += '\n';
        host::LispReader reader(pending);
        host::LispValue form;
        host::ReadStatus read;
        std::size_t consumed = 0;
        while ((read = reader.Next(&form)) == host::ReadStatus::Form) {
            Evaluate(form);
            consumed = reader.Offset();
        }
        if (read == host::ReadStatus::Incomplete) {
            pending.erase(0, consumed);
            continue;
        }
        if (read == host::ReadStatus::Error) {
            ReportUnreadable("standard input", reader);
            status = 2;
        }
        pending.clear();
    }
    if (pending.empty()) {
        out << '\n';
    } else {
        host::LispReader reader(pending);
        host::LispValue form;
        reader.Next(&form);
        ReportUnreadable("standard input", reader);
        status = 2;
    }
    return status;
}

void FormRunner::Evaluate(const host::LispValue& form) {
    const host::LispOutcome outcome = evaluator.Evaluate(form);
    switch (outcome.kind) {
    case host::LispOutcome::Kind::Value:
        out << host::LispPrinter::Print(outcome.value) << std::endl;
        break;
    case host::LispOutcome::Kind::NoValue: break;
    case host::LispOutcome::Kind::Error: host.Events().Error(outcome.error); break;
    }
}

void FormRunner::ReportUnreadable(const std::string& source, const host::LispReader& reader) {
    const host::ReadPosition at = reader.ProblemPosition();
    host.Events().Error("unreadable LISP in " + source + ", line " + std::to_string(at.line) +
                        ", column " + std::to_string(at.column) + ": " + reader.Problem());
}
