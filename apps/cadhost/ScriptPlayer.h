#pragma once
// Plays a script on the headless backend. Each line is an action of its own that the backend
// runs when the program has no message left, so that after each line the program runs until
// none is left; lines take no virtual time except `wait`. Pointer lines aim at the window that
// is active when the line runs.
//
// The script ends when the backend has nothing more to do and nothing can happen any more.
// If a modal window (a dialog, a message box, a file dialog) is still open then, the player
// prints ";; error: script ended with a window open" and ends every modal loop as cancelled;
// the LISP that opened them goes on with that answer. A run without a script is an empty
// script: any modal window it opens is such a window.
//
// Lines that cannot be carried out when they run (no control with that id, a screenshot that
// cannot be written) print an error line and the script goes on.

#include "apps/cadhost/ScriptLine.h"
#include "host/session/EventLog.h"

#include <functional>
#include <vector>

class ScriptPlayer {
public:
    ScriptPlayer(host::EventLog& events, std::vector<ScriptLine> lines);
    // The window system's answer to a stall goes back to what it was.
    ~ScriptPlayer();
    ScriptPlayer(const ScriptPlayer&) = delete;
    ScriptPlayer& operator=(const ScriptPlayer&) = delete;

    // Hands the lines to the headless backend, stops it from moving time on its own and takes
    // over the window system's stall.
    void Start();
    // Plays what the LISP left of the script and runs until nothing more can happen.
    void Finish();
    bool WindowLeftOpen() const { return windowLeftOpen; }

private:
    void Perform(const ScriptLine& line);
    void OnStall();
    // Where a pointer line aims, on the screen; false (with an error line) when it can't aim.
    bool Aim(const ScriptLine& line, POINT* screen);
    void Fail(const ScriptLine& line, const std::string& what);

    host::EventLog& events;
    std::vector<ScriptLine> lines;
    bool windowLeftOpen = false;
    std::function<void()> outerStall;
};
