// CReBarCtrl, the platform's rebar.
#pragma once

#include "afx/drawing/image_list.h"

#include <afxwin.h>

class CToolTipCtrl;

class QVAFX_API CReBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CReBarCtrl)

public:
    CReBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetBarHeight() const;
    BOOL GetBarInfo(REBARINFO* prbi) const;
    BOOL SetBarInfo(REBARINFO* prbi);
    CImageList* GetImageList() const;
    BOOL SetImageList(CImageList* pImageList);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF clr);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF clr);
    UINT GetRowCount() const;
    UINT GetRowHeight(UINT uRow) const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pToolTip);
    CWnd* SetOwner(CWnd* pWnd);
    BOOL SizeToRect(const CRect& rect);
    int HitTest(RBHITTESTINFO* prbht);

    // Bands. The record's size is filled in here.
    UINT GetBandCount() const;
    BOOL GetBandInfo(UINT uBand, REBARBANDINFO* prbbi) const;
    BOOL SetBandInfo(UINT uBand, REBARBANDINFO* prbbi);
    BOOL InsertBand(UINT uIndex, REBARBANDINFO* prbbi);
    BOOL DeleteBand(UINT uBand);
    int IDToIndex(UINT uBandID) const;
    BOOL GetRect(UINT uBand, LPRECT prc) const;
    void GetBandBorders(UINT uBand, LPRECT prc) const;
    BOOL ShowBand(UINT uBand, BOOL fShow = TRUE);
    void MinimizeBand(UINT uBand);
    void MaximizeBand(UINT uBand);
    void RestoreBand(UINT uBand);
    BOOL MoveBand(UINT uFrom, UINT uTo);
    void BeginDrag(UINT uBand, DWORD dwPos = DWORD(-2));
    void DragMove(DWORD dwPos = DWORD(-1));
    void EndDrag();
};
