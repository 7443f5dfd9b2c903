// QVFileSystem: what programs do to files besides reading and writing them. Paths may be longer
// than 260 characters. Where a result is no, GetLastError tells why.

#pragma once

#include "common/path.h"

class QV_COMMON_API QVFileSystem {
public:
    QVFileSystem();
    virtual ~QVFileSystem();

    /// Makes an empty file in the user's folder for temporary files and puts its path in path: the
    /// prefix, a part that nobody can guess, a dot, the extension. The file is new, an existing one
    /// is never opened; it is closed again, and stays until somebody deletes it. Throws a
    /// CFileException* if it cannot be made: path is as it was then. A prefix or an extension with
    /// a separator is a bad path.
    void CreateTempFile(QVPath& path, const CString& strPrefix, const CString& strExtension);

    /// The platform's header makes the name DeleteFileA, here and for callers alike.
    int DeleteFile(const QVPath& path);  ///< 1, or 0 if it could not be deleted

    BOOL Exists(const QVPath& path) const;  ///< a file or a folder
    BOOL IsFolder(const QVPath& path) const;
    BOOL GetSize(const QVPath& path, ULONGLONG& nBytes) const;  ///< of a file; else 0 and FALSE

    /// Copies a file. Unless bReplace, an existing file stays and the answer is FALSE.
    BOOL Copy(const QVPath& from, const QVPath& to, BOOL bReplace = FALSE);
    /// Puts the file from in the place of the file to, in one step: whoever looks sees either of
    /// them whole. Both are on one drive. On failure both are as they were.
    BOOL Replace(const QVPath& from, const QVPath& to);

protected:
    /// The part that nobody can guess: 80 bits of the platform's random generator as letters and
    /// digits. A name that exists already is followed by another try, 16 at most. Empty: none was
    /// to be had, and CreateTempFile throws.
    virtual CString MakeTempName();
};
