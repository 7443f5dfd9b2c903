// Rows written to a file that the user names.

#pragma once

#include "model/settings.h"

#include <afxwin.h>

#include <functional>

class Exporter {
public:
    // What the dialog starts with.
    void UseSettings(const Settings& settings) { m_pSettings = &settings; }
    // Asks for a file, pszName at first (null: the name in the settings), and for what stands
    // between the cells, then writes. False, and said to the user, if that fails; half a list would
    // look like a whole one, so what could not be finished is taken away again. write gives 0 where
    // the file cannot be opened.
    bool Run(CWnd& parent, LPCSTR pszName, const std::function<BOOL(LPCSTR, char)>& write);
    // The file that was written last.
    const CString& Path() const { return m_strPath; }

private:
    const Settings* m_pSettings = nullptr;
    CString m_strPath;
};
