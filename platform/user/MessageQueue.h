#pragma once
// The thread's queue: posted messages, then input, as the real system orders them; paint and
// timer messages are made up when the queue is asked and nothing else is waiting.

#include <deque>

#include "platform/base/WinTypes.h"

namespace plat {

// Input as it arrives from the devices, before it is assigned to a window.
struct RawInput {
    enum Kind { MouseMove, ButtonDown, ButtonUp, Wheel, KeyDown, KeyUp, Char } kind;
    POINT screen;     // mouse events: where the pointer is
    int button = 0;   // 0 left, 1 right, 2 middle
    int value = 0;    // wheel delta, virtual key or character
    DWORD time = 0;
};

class MessageQueue {
public:
    std::deque<MSG> posted;
    std::deque<RawInput> input;
    bool quitPosted = false;
    int quitCode = 0;
};

}  // namespace plat
