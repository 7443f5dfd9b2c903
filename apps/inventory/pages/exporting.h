// Rows written to a file that the user names.

#pragma once

#include "model/settings.h"
#include "pages/page.h"
#include "work.h"

#include <afxwin.h>

#include <functional>

class Exporter {
public:
    // What the dialog starts with.
    void UseSettings(const Settings& settings) { m_pSettings = &settings; }
    // Writes to a path, with a separator between the cells, as a step of the work each; 0 where the
    // file cannot be opened.
    using Write = std::function<BOOL(LPCSTR, char, Work&)>;
    // Asks for a file, pszName at first (null: the name in the settings), and for what stands
    // between the cells, then writes. False if the user cancels, or, told to the user, if that
    // fails: a file of that name is as it was then.
    bool Run(Page& page, LPCSTR pszName, const Write& write);
    // The file that was written last.
    const CString& Path() const { return m_strPath; }

private:
    const Settings* m_pSettings = nullptr;
    CString m_strPath;
};
