#include "parcel/CancelButton.h"

#include "parcel/CallState.h"
#include "parcel/ParcelDialog.h"

BEGIN_MESSAGE_MAP(CancelButton, CButton)
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

void CancelButton::OnLButtonDown(UINT, CPoint) {
    CancelPressed = 1;
    if (ActiveDialog) ActiveDialog->OnCancel();
}
