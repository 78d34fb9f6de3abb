#pragma once
// What a dialog's DoDataExchange gets: the dialog, and whether data goes from the controls to
// the members (save) or back.

class CWnd;

class CDataExchange {
public:
    CDataExchange(CWnd* dialog, bool save) : m_pDlgWnd(dialog), m_bSaveAndValidate(save) {}
    CWnd* m_pDlgWnd;
    bool m_bSaveAndValidate;
};

// Binds a member window object to the dialog's control `id`, once.
void DDX_Control(CDataExchange* dx, int id, CWnd& control);
