// CReBar: bands with other bars and windows in them. Included by afxext.h.
#pragma once

#include "afx/app/control_bar.h"

class CBitmap;
class CReBarCtrl;

/// Create, then AddBar for each bar, which the same frame made. The user drags the bands.
class QVAFX_API CReBar : public CControlBar {
    DECLARE_DYNAMIC(CReBar)

public:
    CReBar() = default;
    ~CReBar() override;

    using CWnd::Create;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwCtrlStyle = RBS_BANDBORDERS,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN |
                                        CBRS_TOP,
                        UINT nID = AFX_IDW_REBAR);
    /// dwStyle: RBBS_ styles.
    BOOL AddBar(CWnd* pBar, LPCTSTR lpszText = nullptr, CBitmap* pbmp = nullptr,
                DWORD dwStyle = RBBS_GRIPPERALWAYS | RBBS_FIXEDBMP);
    BOOL AddBar(CWnd* pBar, COLORREF clrFore, COLORREF clrBack, LPCTSTR lpszText = nullptr,
                DWORD dwStyle = RBBS_GRIPPERALWAYS);
    CReBarCtrl& GetReBarCtrl() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

protected:
    BOOL AddBand(CWnd* pBar, REBARBANDINFO& info);
    afx_msg void OnHeightChange(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};
