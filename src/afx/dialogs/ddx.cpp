// Data exchange: one value, one control, either way.
#include "afx/dialogs/ddx_steps.h"
#include "afx/ole/wnd_control.h"
#include "afx/values/wide_text.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND hWndCtrl = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (hWndCtrl == nullptr) {
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = hWndCtrl;
    m_idLastControl = static_cast<UINT>(nIDC);
    m_bEditLastControl = FALSE;
    return hWndCtrl;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    HWND hWndCtrl = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWndCtrl;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl != nullptr) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl) {
            AfxSend(m_hWndLastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

namespace {

/// A window's notifications dropped while this lives.
class NotifyLockout {
public:
    explicit NotifyLockout(HWND hWnd) : m_hOld(AfxGetWndState().hLockoutNotify) {
        AfxGetWndState().hLockoutNotify = hWnd;
    }
    ~NotifyLockout() { AfxGetWndState().hLockoutNotify = m_hOld; }
    NotifyLockout(const NotifyLockout&) = delete;
    NotifyLockout& operator=(const NotifyLockout&) = delete;

private:
    HWND m_hOld;
};

}  // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange dx(this, bSaveAndValidate);
    // Filling a control makes it notify; nobody is to take that for the user's doing.
    NotifyLockout lockout(m_hWnd);
    try {
        DoDataExchange(&dx);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete();  // the user was told
    } catch (CException* e) {
        e->ReportError();
        e->Delete();
    } catch (const std::bad_alloc&) {
        CMemoryException memory(FALSE);
        memory.ReportError();
    }
    return FALSE;
}

void CWnd::DoDataExchange(CDataExchange*) {}

[[noreturn]] void AfxRejectValue(CDataExchange* pDX, UINT nIDPrompt) {
    AfxMessageBox(nIDPrompt, MB_ICONEXCLAMATION, nIDPrompt);
    pDX->Fail();
    std::abort();  // Fail throws
}

CString AfxItemText(HWND hWnd) {
    CString strText;
    const int nLength = ::GetWindowTextLength(hWnd);
    ::GetWindowText(hWnd, strText.GetBuffer(nLength), nLength + 1);
    strText.ReleaseBuffer();
    return strText;
}

void AfxShowItemText(HWND hWnd, LPCTSTR lpszText) {
    if (AfxItemText(hWnd) != lpszText) {
        ::SetWindowText(hWnd, lpszText);
    }
}

namespace {

bool OnlyBlanksFollow(const char* p) {
    while (isspace(static_cast<unsigned char>(*p))) {
        ++p;
    }
    return *p == '\0';
}

/// The whole text as a number that the type has, or false.
template <typename Integer>
bool ParseInteger(LPCTSTR lpszText, Integer& value) {
    char* pEnd = nullptr;
    errno = 0;
    bool bFits = true;
    Integer parsed = 0;
    if constexpr (std::is_same_v<Integer, ULONGLONG>) {
        parsed = std::strtoull(lpszText, &pEnd, 10);
        bFits = std::strchr(lpszText, '-') == nullptr;  // it would wrap around
    } else {
        const long long nValue = std::strtoll(lpszText, &pEnd, 10);
        bFits = nValue >= std::numeric_limits<Integer>::min() &&
                nValue <= std::numeric_limits<Integer>::max();
        parsed = static_cast<Integer>(nValue);
    }
    if (pEnd == lpszText || errno == ERANGE || !OnlyBlanksFollow(pEnd) || !bFits) {
        return false;
    }
    value = parsed;
    return true;
}

template <typename Integer>
void ExchangeInteger(CDataExchange* pDX, int nIDC, Integer& value, UINT nIDPrompt) {
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (!ParseInteger(AfxItemText(hWnd), value)) {
            AfxRejectValue(pDX, nIDPrompt);
        }
        return;
    }
    CString strText;
    strText.Format("%s", std::to_string(value).c_str());
    AfxShowItemText(hWnd, strText);
}

void ExchangeReal(CDataExchange* pDX, int nIDC, double& value, int nDigits) {
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        const CString strText = AfxItemText(hWnd);
        const char* pText = strText;
        char* pEnd = nullptr;
        const double parsed = std::strtod(pText, &pEnd);
        if (pEnd == pText || !OnlyBlanksFollow(pEnd) || !std::isfinite(parsed)) {
            AfxRejectValue(pDX, AFX_IDP_PARSE_REAL);
        }
        value = parsed;
        return;
    }
    CString strText;
    strText.Format("%.*g", nDigits, value);
    AfxShowItemText(hWnd, strText);
}

[[noreturn]] void RejectRange(CDataExchange* pDX, LPCTSTR lpszMin, LPCTSTR lpszMax,
                              UINT nIDPrompt) {
    CString strPrompt;
    AfxFormatString2(strPrompt, nIDPrompt, lpszMin, lpszMax);
    AfxMessageBox(strPrompt, MB_ICONEXCLAMATION, nIDPrompt);
    pDX->Fail();
    std::abort();  // Fail throws
}

/// A value that was shown out of range is the program's fault, not the user's: it passes.
template <typename Number>
void CheckRange(CDataExchange* pDX, Number value, Number minVal, Number maxVal) {
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal)) {
        return;
    }
    CString strMin;
    CString strMax;
    if constexpr (std::is_floating_point_v<Number>) {
        constexpr int kDigits = std::numeric_limits<Number>::digits10;
        strMin.Format("%.*g", kDigits, static_cast<double>(minVal));
        strMax.Format("%.*g", kDigits, static_cast<double>(maxVal));
        RejectRange(pDX, strMin, strMax, AFX_IDP_PARSE_REAL_RANGE);
    } else {
        RejectRange(pDX, std::to_string(minVal).c_str(), std::to_string(maxVal).c_str(),
                    AFX_IDP_PARSE_INT_RANGE);
    }
}

}  // namespace

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd == nullptr && rControl.m_pCtrlSite == nullptr &&
        !AfxTakeWindowlessControl(rControl, pDX->m_pDlgWnd, static_cast<UINT>(nIDC)) &&
        !rControl.SubclassWindow(pDX->PrepareCtrl(nIDC))) {
        AfxThrowNotSupportedException();
    }
}

void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}

void DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value) {
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen) {
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        AfxCopyChars(value, AfxItemText(hWnd), nMaxLen);
    } else {
        AfxShowItemText(hWnd, value);
    }
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxItemText(hWnd);
    } else {
        AfxShowItemText(hWnd, value);
    }
}

void DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    double wide = value;
    ExchangeReal(pDX, nIDC, wide, std::numeric_limits<float>::digits10);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<float>(wide);
    }
}

void DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeReal(pDX, nIDC, value, std::numeric_limits<double>::digits10);
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxSend<int>(hWnd, BM_GETCHECK);
    } else {
        value = value >= 0 && value <= 2 ? value : 0;
        AfxSend(hWnd, BM_SETCHECK, value);
    }
}

void DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = -1;
    }
    // From the group's first button to the next control that starts a group.
    int nButton = 0;
    do {
        if (AfxSend(hWnd, WM_GETDLGCODE) & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate) {
                AfxSend(hWnd, BM_SETCHECK, nButton == value);
            } else if (AfxSend(hWnd, BM_GETCHECK) != 0) {
                value = nButton;
            }
            ++nButton;
        }
        hWnd = ::GetWindow(hWnd, GW_HWNDNEXT);
    } while (hWnd != nullptr && !(::GetWindowLong(hWnd, GWL_STYLE) & WS_GROUP));
}

namespace {

void GetSelectedText(HWND hWndList, CString& value) {
    value.Empty();
    const int nIndex = AfxSend<int>(hWndList, LB_GETCURSEL);
    const int nLength = nIndex >= 0 ? AfxSend<int>(hWndList, LB_GETTEXTLEN, nIndex) : -1;
    if (nLength >= 0) {
        AfxSend(hWndList, LB_GETTEXT, nIndex, value.GetBuffer(nLength));
        value.ReleaseBuffer();
    }
}

void ExchangeListString(CDataExchange* pDX, int nIDC, CString& value, bool bExact) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        GetSelectedText(hWnd, value);
    } else if (bExact) {
        const LPCTSTR lpszText = value;
        AfxSend(hWnd, LB_SETCURSEL, AfxSend<int>(hWnd, LB_FINDSTRINGEXACT, -1, lpszText));
    } else {
        AfxSend(hWnd, LB_SELECTSTRING, -1, static_cast<LPCTSTR>(value));
    }
}

void ExchangeComboString(CDataExchange* pDX, int nIDC, CString& value, bool bExact) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxItemText(hWnd);
        return;
    }
    const int nFound = AfxSend<int>(hWnd, bExact ? CB_FINDSTRINGEXACT : CB_SELECTSTRING, -1,
                                    static_cast<LPCTSTR>(value));
    if (bExact && nFound != CB_ERR) {
        AfxSend(hWnd, CB_SETCURSEL, nFound);
    } else if (nFound == CB_ERR) {
        ::SetWindowText(hWnd, value);  // into the edit part, if there is one
    }
}

void ExchangeIndex(CDataExchange* pDX, int nIDC, UINT nGetCurSel, UINT nSetCurSel, int& index) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        index = AfxSend<int>(hWnd, nGetCurSel);
    } else {
        AfxSend(hWnd, nSetCurSel, index);
    }
}

}  // namespace

void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeListString(pDX, nIDC, value, false);
}

void DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeListString(pDX, nIDC, value, true);
}

void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, LB_GETCURSEL, LB_SETCURSEL, index);
}

void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeComboString(pDX, nIDC, value, false);
}

void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeComboString(pDX, nIDC, value, true);
}

void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, CB_GETCURSEL, CB_SETCURSEL, index);
}

void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ::GetScrollPos(hWnd, SB_CTL);
    } else {
        ::SetScrollPos(hWnd, SB_CTL, value, TRUE);
    }
}

void DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxSend<int>(hWnd, TBM_GETPOS);
    } else {
        AfxSend(hWnd, TBM_SETPOS, TRUE, value);
    }
}

void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars) {
    if (pDX->m_bSaveAndValidate) {
        if (value.GetLength() > nChars) {
            RejectRange(pDX, std::to_string(nChars).c_str(), "", AFX_IDP_PARSE_STRING_SIZE);
        }
    } else if (pDX->m_hWndLastControl != nullptr && pDX->m_bEditLastControl) {
        // The control keeps to the bound from the start.
        TCHAR szClass[16] = {};
        ::GetClassName(pDX->m_hWndLastControl, szClass, _countof(szClass));
        const bool bCombo = lstrcmpi(szClass, "ComboBox") == 0;
        AfxSend(pDX->m_hWndLastControl, bCombo ? CB_LIMITTEXT : EM_LIMITTEXT, nChars);
    }
}

void DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    CheckRange<int>(pDX, value, minVal, maxVal);
}

void DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    CheckRange<int>(pDX, value, minVal, maxVal);
}

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
}

void DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckRange(pDX, value, minVal, maxVal);
    if (!pDX->m_bSaveAndValidate && pDX->m_hWndLastControl != nullptr) {
        AfxSend(pDX->m_hWndLastControl, TBM_SETRANGEMIN, FALSE, minVal);
        AfxSend(pDX->m_hWndLastControl, TBM_SETRANGEMAX, TRUE, maxVal);
    }
}
