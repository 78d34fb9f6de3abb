#pragma once
// The example dialog of the platform layer: a label, an edit field, a list box, a greyed label
// and buttons. Add moves the field's text into the list, Remove takes the selected entry out,
// OK confirms the choice in a message box.

#include <string>

#include "platform/afx/CButton.h"
#include "platform/afx/CDialog.h"
#include "platform/afx/CEdit.h"
#include "platform/afx/CListBox.h"

class DemoDialog : public CDialog {
public:
    enum { IdName = 100, IdList = 101, IdAdd = 102, IdRemove = 103, IdGreyed = 104 };
    explicit DemoDialog(CWnd* parent = nullptr);

    // The entry that was selected when OK was pressed.
    const std::string& Choice() const { return choice; }

protected:
    void DoDataExchange(CDataExchange* dx) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnAdd();
    void OnRemove();
    void OnSelChange();
    DECLARE_MESSAGE_MAP()

private:
    CEdit name;
    CListBox list;
    CButton remove;
    std::string choice;
};
