// CMiniFrameWnd: the small frame around floating bars and palettes. Included by afxwin.h.
#pragma once

#include "afx/app/frame.h"

// Styles of small frames
#define MFS_SYNCACTIVE 0x00000100L
#define MFS_4THICKFRAME 0x00000200L
#define MFS_THICKFRAME 0x00000400L
#define MFS_MOVEFRAME 0x00000800L
#define MFS_BLOCKSYSMENU 0x00001000L

/// With a small caption, owned by its parent. MFS_THICKFRAME and MFS_4THICKFRAME give it a frame
/// that can be sized; the other MFS_ styles change nothing here.
class QVAFX_API CMiniFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd() = default;
    ~CMiniFrameWnd() override;

    virtual BOOL Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd = nullptr, UINT nID = 0);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd = nullptr, UINT nID = 0);
};
