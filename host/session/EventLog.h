#pragma once
// The transcript lines of things that happen while LISP runs: each is one line that begins with
// ";; ", written and flushed at once so that it lands between the results in the order of
// events. A line feed inside a text prints as \n, so that every event stays one line.
//
// The window system reports its own events (a message box shown, a beep) through Platform().
// The box that acedAlert shows is one of them, but its text is already in the transcript as
// the alert's: Alert() arms the log to drop the next message box, which is that box, since the
// system reports a box before it runs it.

#include <ostream>
#include <string_view>

namespace host {

class EventLog {
public:
    explicit EventLog(std::ostream& out) : out(out) {}

    void Alert(std::string_view text);
    // After the alert's box has closed: nothing more to drop, even if no box could be shown.
    void AlertDone() { alertBoxPending = false; }
    void Fail(std::string_view text) { Write("fail: ", text); }
    void Error(std::string_view message) { Write("error: ", message); }
    // An event of the window system: ("msgbox", TEXT) or ("beep", "FREQ MS").
    void Platform(std::string_view kind, std::string_view text);
    // A line of a window dump: "ID CLASS "TEXT" STATE...", already in one line.
    void Window(std::string_view description) { Write("window ", description); }

private:
    void Write(std::string_view kind, std::string_view text);

    std::ostream& out;
    bool alertBoxPending = false;
};

} // namespace host
