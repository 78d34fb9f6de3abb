#pragma once
// The dialog's status line: a message that blinks, with a beep each time it lights, until the
// user acts (Stop) or its time is up. Blinking switches the control between enabled and
// disabled, so the text stays and the system greys it; the window never hides. The dialog
// colours the enabled text red.

#include "platform/afx/CStatic.h"

#include <string>

class FlashLabel : public CStatic {
public:
    // Shows text and blinks every blinkPeriod ms, lit first; stopAfter above 0 ends the message
    // after that many ms. A Start while flashing replaces the text and restarts the blinking.
    void Start(int stopAfter, int blinkPeriod, const std::string& text);
    // Ends the message: the text goes, the control is left enabled.
    void Stop();

protected:
    void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    enum : UINT_PTR { BlinkTimer = 0, EndTimer = 1 };

    // 1: the next blink lights the label and beeps; 0: it greys the label.
    int phase = 1;
};
