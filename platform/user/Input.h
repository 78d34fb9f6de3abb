#pragma once
// Input from the devices: how backends and scripts hand it in, and how it becomes messages.
// A raw event is assigned to a window only when a loop takes it from the queue, and the key
// state that GetKeyState reports changes at that moment too.

#include <optional>

#include "platform/user/MessageQueue.h"

namespace plat {

// Hands an event to the queue, stamped with the backend's clock.
void PushInput(RawInput input);
// Presses and releases a key as a keyboard would; with `shift` and `ctrl` held around it.
void PushKey(int vk, bool shift = false, bool ctrl = false, bool alt = false);
// Types one character: the key that makes it on a US keyboard, or the character alone.
void PushChar(char c);
void PushClick(POINT screen, int button, bool doubleClick = false);
// The next press starts anew, however soon and near it comes: for scripted input, where no
// time passes between one click and the next.
void ForgetLastClick();

// The message a raw event becomes for the current state, or none when it goes nowhere.
std::optional<MSG> InputMessage(const RawInput& input);
// Takes the event: updates key state, pointer, double-click memory and cursor.
void CommitInput(const RawInput& input, const MSG& msg);

}  // namespace plat
