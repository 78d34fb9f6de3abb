#pragma once
// The tool tip window: a top-level popup that never takes the activation, showing one text in
// the info colours. See ToolTips.h for what programs do with it.

#include "platform/controls/ControlBase.h"
#include "platform/controls/ToolTips.h"

#include <string>
#include <vector>

namespace plat {

class ToolTipControl : public ControlBase {
public:
    using ControlBase::ControlBase;
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    struct Tool {
        TOOLINFO info;
        std::string text; // unless the text is asked for
    };

    int Find(const TOOLINFO* key) const;
    int ToolAt(const MSG& msg) const;
    // The tool's text; a callback's may be anything, and the window may be gone after it.
    std::string TextOf(int index);

    void AddTool(const TOOLINFO* info);
    void DeleteTool(const TOOLINFO* info);
    void SetText(int index, const char* newText);
    void Track(bool on, const TOOLINFO* info);
    void Relay(const MSG* msg);
    void SetDelay(WPARAM which, int ms);
    LRESULT Delay(WPARAM which) const;
    void OnTimer(WPARAM id);
    // Shows tool `index` with its top left near `at` (screen); false when it has no text.
    bool Show(int index, POINT at);
    void Hide();
    void OnPaint();

    std::vector<Tool> tools;
    bool active = true;
    int current = -1; // the tool under the pointer, or the tracked one
    int shown = -1;   // the tool whose tip shows
    int spent = -1;   // a tool whose tip went away; it shows again after the pointer left it
    bool tracking = false;
    POINT trackAt;
    POINT shownAt;
    int maxWidth = -1; // -1: one line, however long
    int initialDelay = static_cast<int>(GetDoubleClickTime());
    int autopopDelay = initialDelay * 10;
    int reshowDelay = initialDelay / 5;
    std::string text; // what shows
};

} // namespace plat
