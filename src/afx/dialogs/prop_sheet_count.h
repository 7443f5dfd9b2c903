// What a property sheet is in the middle of. Internal to the framework.
#pragma once

#include <afxdlgs.h>

/// One more in a count of the sheet's, for as long as this and the sheet's window live. Null: none.
class CPropertySheet::Counting {
public:
    Counting(CPropertySheet* pSheet, int CPropertySheet::*pCount)
        : m_pSheet(pSheet), m_hWnd(pSheet->GetSafeHwnd()), m_pCount(pCount) {
        if (m_hWnd != nullptr) {
            ++(m_pSheet->*m_pCount);
        }
    }
    ~Counting() {
        if (m_hWnd != nullptr && CWnd::FromHandlePermanent(m_hWnd) == m_pSheet) {
            --(m_pSheet->*m_pCount);
        }
    }
    Counting(const Counting&) = delete;
    Counting& operator=(const Counting&) = delete;

private:
    CPropertySheet* m_pSheet;
    HWND m_hWnd;
    int CPropertySheet::*m_pCount;
};
