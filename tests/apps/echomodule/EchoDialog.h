#pragma once
// The echo module's dialog, from its template 100: a name field, a list, a button that turns
// the name to upper case, a status line, a greyed button, OK and Cancel. It shows in its status
// line what the pointer did on the dialog itself, so that a script can check where its clicks,
// drags and wheel turns landed. A double click on a list entry copies it into the name field.

#include "platform/afx/CDialog.h"
#include "platform/afx/CListBox.h"

#include <string>

class EchoDialog : public CDialog {
public:
    enum {
        TemplateId = 100,
        IdName = 101,
        IdList = 102,
        IdUpper = 103,
        IdStatus = 104,
        IdLater = 105
    };

    explicit EchoDialog(CWnd* parent);
    static DialogTemplate Template();

    // What the dialog held when OK was pressed.
    const std::string& Name() const { return name; }
    const std::string& Choice() const { return choice; }
    // The dialog's owner while it ran.
    HWND Owner() const { return owner; }

protected:
    void DoDataExchange(CDataExchange* dx) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnUpper();
    void OnListDoubleClick();
    void OnRButtonUp(UINT flags, CPoint point);
    void OnLButtonDown(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void Status(const std::string& text);
    std::string ChosenEntry() const;

    CListBox list;
    HWND owner = nullptr;
    CPoint dragStart;
    std::string name;
    std::string choice;
};
