#pragma once
// The transcript lines of things that happen while LISP runs: each is one line that begins with
// ";; ", written and flushed at once so that it lands between the results in the order of
// events. A line feed inside a text prints as \n, so that every event stays one line.

#include <ostream>
#include <string_view>

namespace host {

class EventLog {
public:
    explicit EventLog(std::ostream& out) : out(out) {}

    void Alert(std::string_view text) { Write("alert: ", text); }
    void Fail(std::string_view text) { Write("fail: ", text); }
    void MsgBox(std::string_view text) { Write("msgbox: ", text); }
    void Error(std::string_view message) { Write("error: ", message); }
    void Beep(unsigned frequency, unsigned milliseconds);

private:
    void Write(std::string_view kind, std::string_view text);

    std::ostream& out;
};

} // namespace host
