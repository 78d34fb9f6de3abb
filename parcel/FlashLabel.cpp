#include "parcel/FlashLabel.h"

BEGIN_MESSAGE_MAP(FlashLabel, CStatic)
ON_WM_TIMER()
END_MESSAGE_MAP()

void FlashLabel::Start(int stopAfter, int blinkPeriod, const std::string& text) {
    SetWindowText(text.c_str());
    phase = 1;
    SetTimer(BlinkTimer, static_cast<UINT>(blinkPeriod), nullptr);
    if (stopAfter > 0) SetTimer(EndTimer, static_cast<UINT>(stopAfter), nullptr);
}

void FlashLabel::Stop() {
    KillTimer(EndTimer);
    KillTimer(BlinkTimer);
    EnableWindow(TRUE);
    SetWindowText("");
}

void FlashLabel::OnTimer(UINT_PTR id) {
    if (id == BlinkTimer && phase == 1) {
        EnableWindow(TRUE);
        phase = 0;
        Beep(100, 100);
    } else if (id == BlinkTimer) {
        EnableWindow(FALSE);
        phase = 1;
    } else if (id == EndTimer) {
        Stop();
    }
    CStatic::OnTimer(id);
}
