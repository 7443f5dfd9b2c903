// Lists of images of one size. Included by afxcmn.h.
#pragma once

#include "afx/drawing/gdi.h"

class CDC;
class CWnd;

class QVAFX_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    ~CImageList() override;  ///< destroys the list if the object owns it

    HIMAGELIST m_hImageList = nullptr;

    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const;  ///< null also for a null pointer
    static CImageList* FromHandle(HIMAGELIST hImageList);
    static CImageList* FromHandlePermanent(HIMAGELIST hImageList);
    static void DeleteTempMap();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// From a bitmap resource of images cx wide; crMask becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(CImageList& list1, int nImage1, CImageList& list2, int nImage2, int dx, int dy);
    BOOL Create(CImageList* pImageList);  ///< a copy
    BOOL DeleteImageList();

    int GetImageCount() const;
    BOOL SetImageCount(UINT uNewCount);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF cr);
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    HICON ExtractIcon(int nImage);
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin,
                      UINT fStyle = ILD_NORMAL, DWORD dwRop = SRCCOPY,
                      COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT);
    BOOL SetOverlayImage(int nImage, int nOverlay);
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);

    // One image follows the pointer: begun by a list, shown and moved over a window, and ended.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void EndDrag();
    /// Points are from the upper left corner of the window, its frame included.
    static BOOL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL DragMove(CPoint pt);
    static BOOL DragLeave(CWnd* pWndLock);
    static BOOL DragShowNolock(BOOL bShow);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    /// The list of the image that is dragged, or null.
    static CImageList* GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);

private:
    friend struct AfxImageListMap;
    template <class, class>
    friend class CHandleMap;
    bool m_bTemporary = false;
    CHandleMapLink<CImageList> m_mapLink;
};
