#include "host/session/EventLog.h"

#include <string>

namespace host {

void EventLog::Alert(std::string_view text) {
    Write("alert: ", text);
    alertBoxPending = true;
}

void EventLog::Platform(std::string_view kind, std::string_view text) {
    if (kind == "msgbox") {
        if (alertBoxPending) {
            alertBoxPending = false;
            return;
        }
        Write("msgbox: ", text);
    } else if (kind == "beep") {
        Write("beep ", text);
    } else {
        // An event this log has no line of its own for still shows, in the common form.
        Write(std::string(kind) + ": ", text);
    }
}

void EventLog::Write(std::string_view kind, std::string_view text) {
    std::string line = ";; ";
    line += kind;
    for (char c : text) {
        if (c == '\n')
            line += "\\n";
        else
            line += c;
    }
    out << line << std::endl;
}

} // namespace host
