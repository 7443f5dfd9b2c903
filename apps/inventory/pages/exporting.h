// Rows written to a file that the user names, as a table for a spreadsheet or a browser.

#pragma once

#include "QVControls.h"
#include "model/settings.h"
#include "model/table_writer.h"
#include "work.h"

#include <functional>

class Exporter {
public:
    // What the dialog starts with.
    void UseSettings(const Settings& settings) { m_pSettings = &settings; }
    // Writes a table, from Begin to End, as work.
    using Write = std::function<void(TableWriter&, Work&)>;
    // Asks for a file, pszName at first (null: the name in the settings), whose kind is that of its
    // name, and for what stands between the cells, then writes. What to say of it; empty if the
    // user does not want to, or if it failed, which is told: a file of that name is as it was then.
    CString Run(CWnd& parent, LPCSTR pszName, const Write& write);

private:
    const Settings* m_pSettings = nullptr;
    CString m_strPath;  // of the file that was written last
};

// The columns and rows of lists as they show them, a step of the work each.
void WriteList(QVListCtrlEx& list, const std::string& strTitle, TableWriter& writer, Work& work);
void WriteBox(QVBitmapListBox& box, const std::string& strTitle, TableWriter& writer, Work& work);
