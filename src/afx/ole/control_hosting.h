// Hosting of ActiveX controls: what has to be called before CWnd::CreateControl. The container and
// its sites are in afxocc.h.
#pragma once

#include "afx/values/string.h"

#include <oleauto.h>

class CDataExchange;

/// Lets windows and dialog templates of this program have ActiveX controls: called in InitInstance,
/// behind AfxOleInit.
QVAFX_API void AfxEnableControlContainer();

// Data exchange with properties of an ActiveX control of a dialog.
QVAFX_API void DDX_OCText(CDataExchange* pDX, int nIDC, DISPID dispid, CString& value);
QVAFX_API void DDX_OCBool(CDataExchange* pDX, int nIDC, DISPID dispid, BOOL& value);
QVAFX_API void DDX_OCInt(CDataExchange* pDX, int nIDC, DISPID dispid, int& value);
QVAFX_API void DDX_OCInt(CDataExchange* pDX, int nIDC, DISPID dispid, long& value);
QVAFX_API void DDX_OCColor(CDataExchange* pDX, int nIDC, DISPID dispid, DWORD& value);
QVAFX_API void DDX_OCFloat(CDataExchange* pDX, int nIDC, DISPID dispid, double& value);

/// The class of a ProgID or of a class id in braces. S_OK or why there is none.
QVAFX_API HRESULT AfxGetClassIDFromString(LPCTSTR lpsz, LPCLSID lpClsID);
