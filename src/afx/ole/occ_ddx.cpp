// Data exchange with properties of ActiveX controls.
#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"

#include <afxdisp.h>

COleControlSite* CDataExchange::PrepareOleCtrl(int nIDC) {
    COleControlContainer* const pContainer = m_pDlgWnd->m_pCtrlCont;
    COleControlSite* const pSite =
        pContainer != nullptr ? pContainer->FindItem(static_cast<UINT>(nIDC)) : nullptr;
    if (pSite == nullptr) {
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = pSite->m_hWnd;
    m_idLastControl = static_cast<UINT>(nIDC);
    m_bEditLastControl = FALSE;
    return pSite;
}

/// argument: the value as a call takes it.
template <typename Argument>
static void Exchange(CDataExchange* pDX, int nIDC, DISPID dispid, VARTYPE vt, void* pValue,
                     Argument argument) {
    COleControlSite* const pSite = pDX->PrepareOleCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        pSite->GetProperty(dispid, vt, pValue);
    } else {
        pSite->SetProperty(dispid, vt, argument);
    }
}

void DDX_OCText(CDataExchange* pDX, int nIDC, DISPID dispid, CString& value) {
    Exchange(pDX, nIDC, dispid, VT_BSTR, &value, value.GetString());
}

void DDX_OCBool(CDataExchange* pDX, int nIDC, DISPID dispid, BOOL& value) {
    Exchange(pDX, nIDC, dispid, VT_BOOL, &value, value);
}

void DDX_OCInt(CDataExchange* pDX, int nIDC, DISPID dispid, int& value) {
    Exchange(pDX, nIDC, dispid, VT_I4, &value, value);
}

void DDX_OCInt(CDataExchange* pDX, int nIDC, DISPID dispid, long& value) {
    Exchange(pDX, nIDC, dispid, VT_I4, &value, value);
}

void DDX_OCColor(CDataExchange* pDX, int nIDC, DISPID dispid, OLE_COLOR& value) {
    Exchange(pDX, nIDC, dispid, VT_I4, &value, value);
}

void DDX_OCFloat(CDataExchange* pDX, int nIDC, DISPID dispid, double& value) {
    Exchange(pDX, nIDC, dispid, VT_R8, &value, value);
}
