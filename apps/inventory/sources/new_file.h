// NewFile: a file that is written beside the one it is to be, and takes that one's place when it is
// whole. Until then, and if it never comes to that, the other is as it was. A device is written to
// itself.

#pragma once

#include <afxwin.h>

class NewFile {
public:
    explicit NewFile(LPCSTR pszPath);
    ~NewFile();  // what was not put in its place goes
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Where to write.
    const CString& Path() const { return m_strPath; }
    // False if that cannot be, with GetLastError.
    bool PutInPlace();

private:
    const CString m_strPlace;
    CString m_strPath;
    bool m_bDone = false;
};
