// QVCustCtrl: base of the controls that paint themselves entirely. It gives them one initialisation
// path for a control in a dialog template and one made from code, a default window style that can
// be adjusted before creation, and flicker-free painting: a derived class sees only Draw on a
// memory device context, and each pixel of the screen is written once a paint.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVCustCtrl : public CWnd {
    DECLARE_DYNCREATE(QVCustCtrl)

public:
    // m_dwDefStyle starts as WS_CHILD | WS_VISIBLE | WS_TABSTOP.
    QVCustCtrl();
    ~QVCustCtrl() override;

    // Changes the style that a later Create uses; an existing window keeps its own.
    void ModifyDefStyle(DWORD dwRemove, DWORD dwAdd);

    // Makes the control ready. From a dialog, attaches it to the item nID of pParent; 0 if there is
    // none. On a control that has a window already (made by Create, which calls this itself) gives
    // 1 at once. A derived class calls this first, then sets itself up; a 0 from it fails Create.
    virtual int Initialize(UINT nID, CWnd* pParent);
    // A child window at rect (client pixels of pParent), in the default style. 1, or 0 on failure.
    virtual int Create(UINT nID, const CRect& rect, CWnd* pParent);

protected:
    // Ends quietly where a handler finds no memory; a window that is being made is not made then.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Draws the whole client area rect. The base fills it in COLOR_BTNFACE.
    virtual void Draw(CDC& dc, const CRect& rect);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    DWORD m_dwDefStyle;

private:
    using CWnd::Create;
    void ForgetHalfAttached();
};
