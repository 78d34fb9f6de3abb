#pragma once
// Runs LISP forms against the host and prints the transcript: each result on its own line in
// LISP notation, nothing for a call without a value, ";; error: ..." for a form that failed.
//
// Exit status: 0 when every form was read, 2 when one could not be. A form that was read but
// failed while it ran (an unknown function, say) prints its error and the run goes on, as at
// the host's command line; it does not change the status.

#include "apps/cadhost/LispSource.h"
#include "host/lisp/LispEvaluator.h"
#include "host/lisp/LispReader.h"

#include <istream>
#include <ostream>
#include <vector>

namespace host {
class Host;
}

class FormRunner {
public:
    FormRunner(host::Host& host, std::ostream& out) : host(host), evaluator(host), out(out) {}

    // Reads all forms of all sources before it evaluates any: one unreadable form is reported
    // with its place and nothing runs.
    int RunAll(const std::vector<LispSource>& sources);

    // Reads forms from a person at a terminal: a "Command: " prompt for each form, which may
    // span lines. An unreadable form is reported and dropped with the rest of its line, and the
    // session goes on; the exit status remembers it.
    int RunInteractive(std::istream& in);

private:
    void Evaluate(const host::LispValue& form);
    void ReportUnreadable(const std::string& source, const host::LispReader& reader);

    host::Host& host;
    host::LispEvaluator evaluator;
    std::ostream& out;
};
