// Data exchange with dates, times, amounts and addresses.
#include "afx/dialogs/ddx_steps.h"
#include "afx/window/wnd_state.h"

#include <afxdtctl.h>

namespace {

/// A value that has a text and is read from one.
template <class Value, class Parse>
void ExchangeText(CDataExchange* pDX, int nIDC, Value& value, Parse parse) {
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        AfxShowItemText(hWnd, value.Format());
        return;
    }
    const CString strText = AfxItemText(hWnd);
    Value parsed;
    if (strText.IsEmpty()) {
        parsed.SetStatus(Value::null);
    } else if (!parse(parsed, strText)) {
        AfxRejectValue(pDX, AFX_IDP_PARSE_DATETIME);
    }
    value = parsed;
}

/// The control of the last exchange, for the calls of its class.
template <class Ctrl>
class BorrowedCtrl {
public:
    explicit BorrowedCtrl(HWND hWnd) { m_ctrl.m_hWnd = hWnd; }
    ~BorrowedCtrl() { m_ctrl.m_hWnd = nullptr; }
    BorrowedCtrl(const BorrowedCtrl&) = delete;
    BorrowedCtrl& operator=(const BorrowedCtrl&) = delete;
    Ctrl* operator->() { return &m_ctrl; }

private:
    Ctrl m_ctrl;
};

template <class Time>
void ExchangePicker(CDataExchange* pDX, int nIDC, Time& value) {
    BorrowedCtrl<CDateTimeCtrl> picker(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate) {
        picker->GetTime(value);
    } else if constexpr (std::is_same_v<Time, CTime>) {
        picker->SetTime(&value);
    } else {
        picker->SetTime(value);
    }
}

template <class Time>
void ExchangeMonth(CDataExchange* pDX, int nIDC, Time& value) {
    BorrowedCtrl<CMonthCalCtrl> calendar(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate) {
        calendar->GetCurSel(value);
    } else {
        calendar->SetCurSel(value);
    }
}

template <class Ctrl, class Time>
void CheckTime(CDataExchange* pDX, const Time& value, const Time* pMin, const Time* pMax) {
    if (!pDX->m_bSaveAndValidate) {
        BorrowedCtrl<Ctrl>(pDX->m_hWndLastControl)->SetRange(pMin, pMax);
    } else if ((pMin != nullptr && value < *pMin) || (pMax != nullptr && value > *pMax)) {
        AfxRejectValue(pDX, AFX_IDP_PARSE_DATETIME);
    }
}

}  // namespace

void DDX_Text(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    ExchangeText(pDX, nIDC, value,
                 [](COleDateTime& date, LPCTSTR lpsz) { return date.ParseDateTime(lpsz); });
}

void DDX_Text(CDataExchange* pDX, int nIDC, COleCurrency& value) {
    ExchangeText(pDX, nIDC, value,
                 [](COleCurrency& cur, LPCTSTR lpsz) { return cur.ParseCurrency(lpsz); });
}

void DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        AfxSend(hWnd, IPM_GETADDRESS, 0, &value);
    } else {
        AfxSend(hWnd, IPM_SETADDRESS, 0, value);
    }
}

void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    ExchangePicker(pDX, nIDC, value);
}
void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    ExchangePicker(pDX, nIDC, value);
}
void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = AfxItemText(hWnd);
        return;
    }
    COleDateTime date;
    if (date.ParseDateTime(value)) {
        ExchangePicker(pDX, nIDC, date);
    }
}
void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    ExchangeMonth(pDX, nIDC, value);
}
void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    ExchangeMonth(pDX, nIDC, value);
}

void DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                        const CTime* pMaxRange) {
    CheckTime<CDateTimeCtrl>(pDX, refValue, pMinRange, pMaxRange);
}
void DDV_MinMaxDateTime(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* pMinRange,
                        const COleDateTime* pMaxRange) {
    CheckTime<CDateTimeCtrl>(pDX, refValue, pMinRange, pMaxRange);
}
void DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                     const CTime* pMaxRange) {
    CheckTime<CMonthCalCtrl>(pDX, refValue, pMinRange, pMaxRange);
}
void DDV_MinMaxMonth(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* pMinRange,
                     const COleDateTime* pMaxRange) {
    CheckTime<CMonthCalCtrl>(pDX, refValue, pMinRange, pMaxRange);
}
