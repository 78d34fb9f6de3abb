#pragma once
// The framework's dialog: a template, a modal or modeless run, data exchange with controls,
// and the OK, Cancel and font hooks that subclasses override.

#include "platform/afx/CDataExchange.h"
#include "platform/afx/CWnd.h"
#include "platform/user/Dialog.h"

class CFont;

class CDialog : public CWnd {
public:
    // The template is looked up in the current resource module when the dialog runs.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    CDialog(const DialogTemplate& tpl, CWnd* parent = nullptr);
    ~CDialog() override;

    virtual INT_PTR DoModal();
    using CWnd::Create;
    BOOL Create(CWnd* parent = nullptr);
    void EndDialog(int result);
    BOOL UpdateData(BOOL save = TRUE);
    void MapDialogRect(RECT* r) const { ::MapDialogRect(m_hWnd, r); }
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void GotoDlgCtrl(CWnd* control) { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), 1); }

    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    // The font the template asked for; a dialog may make the object hold another font, which
    // its controls then get.
    virtual void OnSetFont(CFont* font);

protected:
    virtual void DoDataExchange(CDataExchange* dx);
    LRESULT HandleInitDialog(WPARAM, LPARAM);
    LRESULT HandleSetFont(WPARAM, LPARAM);
    LRESULT HandleGetFont(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    const DialogTemplate* FindTemplate() const;
    UINT templateId = 0;
    DialogTemplate ownTemplate;
    bool hasOwnTemplate = false;
    CWnd* parentWnd = nullptr;
    HFONT font = nullptr;
    bool ownsFont = false;
};
