// ActiveX controls in dialog templates: items whose class is a class id in braces. The system does
// not know them, so they are taken out of the template before it gets it, and made afterwards at
// their places in the order of the items. Internal to the framework, but for the type's name.
#pragma once

#include "afx/window/wnd.h"

#include <memory>
#include <vector>

struct _AFX_OCC_DIALOG_INFO {
    struct Item {
        int nPlace;  ///< among all items
        DWORD dwStyle;
        CRect rcUnits;
        UINT nID;
        CLSID clsid;
        CString strText;
    };
    std::vector<BYTE> bytes;  ///< the template without the controls
    std::vector<Item> items;
    int nItems = 0;  ///< with the controls

    LPCDLGTEMPLATE Template() const { return reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()); }
};

/// Null if a template has no such items, or if the program does not host controls.
std::unique_ptr<_AFX_OCC_DIALOG_INFO> AfxSplitDialogTemplate(LPCDLGTEMPLATE pTemplate);

/// Makes the controls of a dialog whose other items are there. pDlgInit: its DLGINIT data or null.
/// FALSE if one of them cannot be made, or took the dialog away.
BOOL AfxCreateDlgControls(CWnd& dlg, const _AFX_OCC_DIALOG_INFO& info, const void* pDlgInit);

/// The DLGINIT data of a dialog, or null.
void* AfxFindDlgInit(LPCTSTR lpszResourceName);

/// One record of DLGINIT data. Behind the last one stands a zero.
class AfxDlgInitRecord {
public:
    explicit AfxDlgInitRecord(const void* p) : m_p(static_cast<const BYTE*>(p)) {}
    explicit operator bool() const { return m_p != nullptr && ID() != 0; }
    UINT ID() const { return Read<WORD>(0); }
    UINT Message() const { return Read<WORD>(sizeof(WORD)); }
    DWORD Bytes() const { return Read<DWORD>(2 * sizeof(WORD)); }
    const BYTE* Data() const { return m_p + kHeadBytes; }
    AfxDlgInitRecord Next() const { return AfxDlgInitRecord(Data() + Bytes()); }
    /// The state of an ActiveX control, which is no message.
    bool IsControlState() const;

private:
    static constexpr size_t kHeadBytes = 2 * sizeof(WORD) + sizeof(DWORD);

    template <class Value>
    Value Read(size_t nOffset) const {
        Value value;
        std::memcpy(&value, m_p + nOffset, sizeof value);  // nothing is aligned
        return value;
    }
    const BYTE* m_p;
};
