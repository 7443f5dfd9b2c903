// Data exchange and validation for dialogs. Called from DoDataExchange; each moves one value in the
// direction that the CDataExchange says. A text that is no number, or a value out of bounds, tells
// the user and ends the pass.
#pragma once

#define __AFXDD_H__

#include "afx/dialogs/dialog.h"

class COleCurrency;
class COleDateTime;

QVAFX_API void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, short& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, long& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, COleDateTime& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, COleCurrency& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, float& value);
QVAFX_API void DDX_Text(CDataExchange* pDX, int nIDC, double& value);

QVAFX_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// nIDC is the group's first button; value is the index of the checked one, -1 for none.
QVAFX_API void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
QVAFX_API void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
QVAFX_API void DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
QVAFX_API void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
QVAFX_API void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
QVAFX_API void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
QVAFX_API void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
QVAFX_API void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
QVAFX_API void DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

QVAFX_API void DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value);
QVAFX_API void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
QVAFX_API void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);
QVAFX_API void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);
QVAFX_API void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);
QVAFX_API void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);

QVAFX_API void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
QVAFX_API void DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
QVAFX_API void DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
QVAFX_API void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
QVAFX_API void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
QVAFX_API void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
QVAFX_API void DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
QVAFX_API void DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal);
QVAFX_API void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal,
                                double maxVal);
QVAFX_API void DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal,
                                  LONGLONG maxVal);
QVAFX_API void DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                   ULONGLONG maxVal);
// These give the control the bounds as well. A null pointer leaves that end open.
QVAFX_API void DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
QVAFX_API void DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                  const CTime* pMaxRange);
QVAFX_API void DDV_MinMaxDateTime(CDataExchange* pDX, COleDateTime& refValue,
                                  const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
QVAFX_API void DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                               const CTime* pMaxRange);
QVAFX_API void DDV_MinMaxMonth(CDataExchange* pDX, COleDateTime& refValue,
                               const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
