// CMirrorFile: a file that takes the place of another one only when it is complete.
#pragma once

#include "afx/objects/file.h"

/// With modeCreate it writes beside the file that it was opened under, and Close puts it in its
/// place; Abort, or the destructor, leaves the old file as it was. Opened otherwise, it is a CFile.
class QVAFX_API CMirrorFile : public CFile {
    DECLARE_DYNAMIC(CMirrorFile)

public:
    CMirrorFile();
    ~CMirrorFile() override;

    /// FALSE also where the old file could not be written to.
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    void Close() override;
    void Abort() override;

protected:
    CString m_strMirrorName;  ///< the file beside it; empty if there is none
};
