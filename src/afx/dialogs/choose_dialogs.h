// Choosing a colour or a font. While the system's dialog is open, the object is its window.
#pragma once

#include "afx/dialogs/dialog.h"

#include <afxdlgs.h>

#include <richedit.h>

class QVAFX_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)

public:
    /// dwFlags: CC_ flags.
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    CHOOSECOLOR m_cc;  ///< may be changed before DoModal

    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// The sixteen custom colours of all such dialogs; white at first.
    static COLORREF* GetSavedCustomColors();
    /// While the dialog is open.
    void SetCurrentColor(COLORREF clr);

protected:
    /// TRUE keeps the dialog open.
    virtual BOOL OnColorOK();

private:
    static UINT_PTR CALLBACK HookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

class QVAFX_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)

public:
    /// dwFlags: CF_ flags. pdcPrinter: the printer whose fonts are shown.
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr,
                         DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS, CDC* pdcPrinter = nullptr,
                         CWnd* pParentWnd = nullptr);
    explicit CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags = CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);

    CHOOSEFONT m_cf;  ///< may be changed before DoModal
    LOGFONT m_lf;

    INT_PTR DoModal() override;
    /// What was chosen; while the dialog is open, what it shows.
    void GetCurrentFont(LPLOGFONT lplf);
    /// What was chosen, as a rich edit takes it.
    void GetCharFormat(CHARFORMAT& cf) const;
    CString GetFaceName() const;
    CString GetStyleName() const { return m_szStyleName; }
    int GetSize() const { return m_cf.iPointSize; }  ///< in tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut; }
    BOOL IsUnderline() const { return m_lf.lfUnderline; }
    BOOL IsBold() const { return m_lf.lfWeight == FW_BOLD; }
    BOOL IsItalic() const { return m_lf.lfItalic; }

private:
    void Init(const LOGFONT* lplfInitial, DWORD dwFlags, const CDC* pdcPrinter);

    TCHAR m_szStyleName[64] = {};
};
