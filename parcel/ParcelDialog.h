#pragma once
// The modal dialog of a KERVDIALOG call: the parcel table, the status line under it and the
// buttons OK, Cancel, Save, Load and Delete Row. OK accepts the table only when CollectResult
// passes it, and then keeps the column widths in the settings file; Cancel asks first. The dialog's
// template, id 130, belongs to the module's resources.
//
// The table reaches the dialog through ActiveDialog: button 1004, the label and OnCancel.

#include "parcel/CancelButton.h"
#include "parcel/FlashLabel.h"
#include "parcel/ParcelGrid.h"
#include "platform/afx/CDialog.h"

class ParcelDialog : public CDialog {
public:
    static constexpr UINT TemplateId = 130;
    static constexpr int GridControl = 1000;
    static constexpr int LabelControl = 1001;

    explicit ParcelDialog(CWnd* parent = nullptr);
    ~ParcelDialog() override;

    // Registers template 130 among the dialog resources of `module`.
    static void RegisterTemplate(HINSTANCE module);

    BOOL OnInitDialog() override;
    void OnSetFont(CFont* font) override;
    void OnOK() override;
    void OnCancel() override;
    void OnDeleteRow();
    // The table file beside the drawing: Save only what OK would accept; Load replaces the
    // stock and the rows by the file's and sets the table up anew.
    void OnSaveTable();
    void OnLoadTable();
    void EnableDeleteRow(BOOL enable);

    ParcelGrid grid;
    FlashLabel label;
    CancelButton cancelButton;

protected:
    void DoDataExchange(CDataExchange* dx) override;
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    // Shrinks a dialog that doesn't fit on the screen, as large system fonts make it.
    void FitToScreen();
};
