// LogView: a log file under a caption that names it, lines of removals and of trouble in styles of
// their own.

#pragma once

#include "QVControls.h"

class LogView : public QVTextHeaderWnd {
public:
    // Shows a file from its start; the caption says if it cannot be read.
    bool Open(const CString& strPath);
    // Adds what the file has grown by. True if there was a whole line more. A file that has shrunk
    // is shown anew.
    bool ReadMore();
    const CString& Path() const { return m_strPath; }
    // The end of the text.
    void ShowEnd();
    bool AtEnd();

private:
    int StyleOf(const CString& strLine) const;
    // Adds whole lines from where reading stopped; with bAll also a last line without end.
    int AddLines(bool bAll);

    CString m_strPath;
    ULONGLONG m_nRead = 0;  // bytes of the file that are shown
    int m_nRemoval = -1;    // styles
    int m_nTrouble = -1;
};
