// QVPath: a path as text, by its components. It asks no file system: QVFileSystem does.
//
// A path is a root and components: "C:\", "\", "\\" before a machine, "\\?\" before anything that
// the platform is to take literally, or none at all. With the backslash as separator a slash
// separates as well. Several separators count as one, and those at the end for nothing; the text
// keeps them as they were set. Texts are in the process's code page: a character whose second byte
// looks like a separator separates nothing. No length is too long; 32,767 characters is the
// platform's own limit.

#pragma once

#include "common/common_api.h"

#include <afxwin.h>

class QV_COMMON_API QVPath {
public:
    explicit QVPath(char chSeparator = '\\');
    explicit QVPath(LPCSTR pszPath, char chSeparator = '\\');

    void Set(LPCSTR pszPath);  ///< null empties it
    void Empty() { m_strPath.Empty(); }
    BOOL IsEmpty() const { return m_strPath.IsEmpty(); }
    const CString& GetPath() const { return m_strPath; }
    operator LPCSTR() const { return m_strPath; }
    char GetSeparator() const { return m_chSeparator; }

    /// Adds a component or several, with one separator between. Separators before the part go, so
    /// that the path never leaves the folder it names; an empty path becomes the part as it stands.
    /// "C:" becomes "C:\part". Null or an empty part changes nothing.
    void Append(LPCSTR pszPart);

    /// Takes off the last nCount components and gives them, with the separators between them. How
    /// many it were; 0 and an empty text where only the root is left, which stays: "C:\", "\", and
    /// "\\", from which machine and share can be taken.
    int RemoveLast(CString& strLast, int nCount = 1);

    /// One component after the other; nPos starts at 0 and is a position in the text. FALSE and an
    /// empty text at the end. The first of "\\machine\share\a" is "machine", of "C:\a" it is "C:".
    BOOL GetNextComponent(int& nPos, CString& strPart) const;

    CString GetName() const;       ///< the last component; empty for a root
    CString GetTitle() const;      ///< the name without its extension
    CString GetExtension() const;  ///< without the dot; none for ".name", "." and ".."
    /// The path without its last component: "a" of "a\b", empty for "a", a root for a root.
    QVPath GetParent() const;

    /// TRUE if the current folder and drive do not matter: "C:\a" and "\\machine\share", but
    /// neither "\a" nor "C:a". With another separator than the backslash "/a" is absolute.
    BOOL IsAbsolute() const;
    BOOL IsUnc() const;  ///< begins with a machine: "\\machine..." or "\\?\UNC\machine..."

    /// Leaves out "." and resolves "..", which ends at the root: "C:\", or "\\machine\share".
    /// Single separators, none at the end; what comes to nothing is ".". "\\?\" paths stay.
    void Normalize();

private:
    CString m_strPath;
    char m_chSeparator;
};
