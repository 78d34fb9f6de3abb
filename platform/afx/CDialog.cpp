#include "platform/afx/CDialog.h"

#include "platform/afx/AfxApp.h"
#include "platform/afx/CFont.h"

namespace {
// The dialog procedure of framework dialogs: the object's message tables have had every
// message first, so nothing is left to do here.
INT_PTR AfxDlgProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }
}  // namespace

void DDX_Control(CDataExchange* dx, int id, CWnd& control) {
    if (!control.m_hWnd) control.SubclassDlgItem(static_cast<UINT>(id), dx->m_pDlgWnd);
}

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, HandleSetFont)
    ON_MESSAGE(WM_GETFONT, HandleGetFont)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT id, CWnd* parent) : templateId(id), parentWnd(parent) {}

CDialog::CDialog(const DialogTemplate& tpl, CWnd* parent)
    : ownTemplate(tpl), hasOwnTemplate(true), parentWnd(parent) {}

CDialog::~CDialog() {
    if (m_hWnd) ::DestroyWindow(m_hWnd);
    if (ownsFont && font) DeleteObject(font);
}

const DialogTemplate* CDialog::FindTemplate() const {
    if (hasOwnTemplate) return &ownTemplate;
    return FindDialogResource(AfxGetResourceHandle(), MAKEINTRESOURCE(static_cast<int>(templateId)));
}

INT_PTR CDialog::DoModal() {
    const DialogTemplate* tpl = FindTemplate();
    if (!tpl) return -1;
    HWND parent = parentWnd ? parentWnd->m_hWnd : ::GetActiveWindow();
    BindNextWindow(this);
    INT_PTR result = ::DialogBoxIndirectParam(AfxGetResourceHandle(), tpl, parent, AfxDlgProc, 0);
    BindNextWindow(nullptr);
    return result;
}

BOOL CDialog::Create(CWnd* parent) {
    const DialogTemplate* tpl = FindTemplate();
    if (!tpl) return FALSE;
    if (parent) parentWnd = parent;
    BindNextWindow(this);
    HWND dlg = ::CreateDialogIndirectParam(AfxGetResourceHandle(), tpl, parentWnd ? parentWnd->m_hWnd : nullptr,
                                           AfxDlgProc, 0);
    BindNextWindow(nullptr);
    return dlg != nullptr;
}

void CDialog::EndDialog(int result) { ::EndDialog(m_hWnd, result); }

BOOL CDialog::UpdateData(BOOL save) {
    CDataExchange dx(this, save != 0);
    DoDataExchange(&dx);
    return TRUE;
}

void CDialog::DoDataExchange(CDataExchange*) {}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (!UpdateData(TRUE)) return;
    EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

void CDialog::OnSetFont(CFont*) {}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) { return OnInitDialog(); }

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    CFont given;
    given.Attach(reinterpret_cast<HFONT>(wParam));
    OnSetFont(&given);
    HFONT kept = static_cast<HFONT>(given.Detach());
    if (ownsFont && font && font != kept) DeleteObject(font);
    font = kept;
    // A font the dialog made for itself is the dialog's to delete.
    ownsFont = kept != reinterpret_cast<HFONT>(wParam);
    return 0;
}

LRESULT CDialog::HandleGetFont(WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(font); }
