#pragma once
// The framework's object for the modeless find and replace dialogs. It keeps the request
// record and its two text buffers, makes the dialog, and deletes itself when the dialog's
// window goes; so an owner creates it with new and never deletes it. The owner hears the
// requests as the registered message FINDMSGSTRING; GetNotifier turns its lParam back into
// the object.

#include "platform/afx/CWnd.h"
#include "platform/controls/FindReplaceDialog.h"

#include <string>

class CFindReplaceDialog : public CWnd {
public:
    CFindReplaceDialog();
    using CWnd::Create;

    // A find dialog alone, or one that replaces too; FALSE when the window can't be made.
    BOOL Create(BOOL findDialogOnly, const char* findWhat, const char* replaceWith = nullptr,
                DWORD flags = FR_DOWN, CWnd* parent = nullptr);

    static CFindReplaceDialog* GetNotifier(LPARAM lParam);

    // The request that the last message carries.
    BOOL IsTerminating() const { return (m_fr.Flags & FR_DIALOGTERM) != 0; }
    BOOL FindNext() const { return (m_fr.Flags & FR_FINDNEXT) != 0; }
    BOOL ReplaceCurrent() const { return (m_fr.Flags & FR_REPLACE) != 0; }
    BOOL ReplaceAll() const { return (m_fr.Flags & FR_REPLACEALL) != 0; }
    BOOL SearchDown() const { return (m_fr.Flags & FR_DOWN) != 0; }
    BOOL MatchCase() const { return (m_fr.Flags & FR_MATCHCASE) != 0; }
    BOOL MatchWholeWord() const { return (m_fr.Flags & FR_WHOLEWORD) != 0; }
    std::string GetFindString() const { return findWhat; }
    std::string GetReplaceString() const { return replaceWith; }

    FINDREPLACE m_fr;

protected:
    void PostNcDestroy() override;

private:
    char findWhat[128] = "";
    char replaceWith[128] = "";
};
