// LogView: a log file under a caption that names it, lines of removals and of trouble in styles of
// their own.

#pragma once

#include "errors.h"

class LogView : public QVTextHeaderWnd {
public:
    // Shows a file from its start. Null: it could be read; else the caption says so as well.
    Failure Open(const CString& strPath);
    // Adds what the file has grown by. True if there was a whole line more. A file that has shrunk
    // is shown anew.
    bool ReadMore();
    const CString& Path() const { return m_strPath; }
    ULONGLONG BytesRead() const { return m_nRead; }
    // The end of the text.
    void ShowEnd();
    bool AtEnd();

protected:
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    void UseColors();
    int StyleOf(const CString& strLine) const;
    // Adds whole lines from where reading stopped; with bAll also a last line without end. How
    // many; -1 and a reason if the file could not be read.
    int AddLines(bool bAll, Failure& pReason);

    CString m_strPath;
    ULONGLONG m_nRead = 0;  // bytes of the file that are shown
    int m_nRemoval = -1;    // styles
    int m_nTrouble = -1;
};
