// The styled-text family as members of the controls that show rows. Each control derives from one
// of these classes beside its window class, and so has its own style table.
//
// A row is one string: TAB between fields, ESC and a letter at the start of a field for an entry of
// the style table. A row in two columns, the second one in a colour of its own:
//
//     int nWarning = tree.AddStyle(RGB(192, 0, 0), GetSysColor(COLOR_WINDOW));
//     CString strRow = tree.MakeStyleText("disk full", 0);
//     tree.AppendStyleText(strRow, "3 of 3 GB", nWarning);

#pragma once

#include "frame/qv_api.h"
#include "frame/records.h"

#include <afxwin.h>

#include <memory>

namespace qv {
class StyleTable;
}

// The table and how it is read.
class QV_CONTROLS_API QVStyleTable {
public:
    // Index of the new style, or -1 without memory; the table is as it was then.
    int AddStyle(COLORREF crText, COLORREF crBk);
    // Overwrites a style that exists, and asks for no repaint. Always 0: the result does not tell
    // whether there was such a style. Entry 0 follows the system's colours until it is overwritten.
    int UpdateStyle(int nStyle, COLORREF crText, COLORREF crBk);

    // Style of a field; 0 without a code and for a code outside the table.
    int ParseStyle(LPCSTR pszText) const;
    // The text behind the code. A code outside the table loses its ESC alone: its letter shows.
    LPCSTR ParseStyleText(LPCSTR pszText) const;

    int NumStyles() const;
    // Colours of a style; zeros for one that is not in the table.
    QVSTYLE StyleColors(int nStyle) const;

protected:
    QVStyleTable();
    ~QVStyleTable();

    // Appends a style in the system's text colour on crBk, as the default one: -1 without memory.
    int AddDefaultStyle(COLORREF crBk);
    // Puts the default style in the system's text colour of the moment on crBk, unless a program
    // has overwritten it. Asks for no repaint.
    void FollowSystemColors(COLORREF crBk);

private:
    const std::unique_ptr<qv::StyleTable> m_pStyles;
    int m_nDefault = -1;  // the style that follows the system; -1: none does

protected:
    qv::StyleTable& m_aStyles;  // for the library's own classes
};

// With the builders of rows. Entry 0 of the table is made by the constructor, in the system's
// window colours.
class QV_CONTROLS_API QVStyledRows : public QVStyleTable {
public:
    // True for a text that begins with ESC, whatever follows. Null is allowed.
    BOOL HasStyle(LPCSTR pszText) const;
    // ESC and the letter of nStyle; empty below 0. No table is asked.
    static CString MakeStyleCodes(int nStyle);
    // A row of one field. Below 0 without a code; a style beyond the table counts as 0.
    CString MakeStyleText(LPCSTR pszText, int nStyle) const;
    CString& MakeStyleText(LPCSTR pszText, int nStyle, CString& strOut) const;

protected:
    QVStyledRows();
    ~QVStyledRows() = default;

    // As the table's, on the colour of windows.
    void FollowSystemColors();

    // Appends a field to a row, with the TAB between if there is need of one. Below 0 the text goes
    // on in the row's last field, without TAB or code. Public in the controls that offer it.
    CString& AppendStyleText(CString& strRow, LPCSTR pszText, int nStyle) const;

    // Reads the field at nPos, its code included, and moves nPos behind its TAB. 0 at the end of
    // the row, where nPos stays; a TAB at the very end of a row starts no further field.
    BOOL NextField(const CString& strRow, int& nPos, CString& strField) const;
};
