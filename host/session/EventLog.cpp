#include "host/session/EventLog.h"

#include <string>

namespace host {

void EventLog::Beep(unsigned frequency, unsigned milliseconds) {
    out << ";; beep " << frequency << ' ' << milliseconds << std::endl;
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
