#pragma once
// One line of a cadhost script, read and checked: what to do and with what. A pointer line
// aims at client coordinates of the active top-level window, or of its control `control`.

#include "platform/base/WinTypes.h"

#include <optional>
#include <string>
#include <vector>

struct KeyStroke {
    int vk = 0;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

struct ScriptLine {
    enum class Command {
        Click,
        DoubleClick,
        RightClick,
        Press,
        Move,
        Release,
        Wheel,
        Key,
        Type,
        Button,
        Wait,
        Dump,
        Screenshot,
    };

    bool AimsThePointer() const {
        return command != Command::Key && command != Command::Type && command != Command::Wait &&
               command != Command::Dump && command != Command::Screenshot;
    }

    int number = 0; // in the script file, from 1
    Command command = Command::Dump;
    std::optional<int> control; // pointer lines written with @ID
    POINT point{};
    int amount = 0; // the wheel's delta, the milliseconds of a wait, the control of a button
    std::vector<KeyStroke> keys;
    std::string text; // what to type, where to write a screenshot
};
