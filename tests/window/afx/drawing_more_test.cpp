// Frames that are dragged, rectangles that are tracked, pictures that are kept and played.
#include "support/popup.h"

#include <afxcmn.h>
#include <afxext.h>

#include <gtest/gtest.h>

namespace {

class MemoryPicture {
public:
    MemoryPicture() {
        m_dc.CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(40, 40, 1, 32, nullptr);
        m_pOld = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, 40, 40, RGB(255, 255, 255));
    }
    ~MemoryPicture() { m_dc.SelectObject(m_pOld); }
    int Count(COLORREF cr) {
        int nCount = 0;
        for (int i = 0; i < 40 * 40; ++i) {
            nCount += m_dc.GetPixel(i % 40, i / 40) == cr;
        }
        return nCount;
    }
    CDC m_dc;

private:
    CBitmap m_bitmap;
    CBitmap* m_pOld;
};

TEST(DragRect, LeavesNothingBehind) {
    MemoryPicture picture;
    const CSize size(2, 2);
    const CRect rcFirst(5, 5, 25, 25);
    const CRect rcSecond(8, 3, 28, 30);
    picture.m_dc.DrawDragRect(rcFirst, size, nullptr, size);
    EXPECT_GT(picture.Count(0), 60) << "half of its sides";
    picture.m_dc.DrawDragRect(rcSecond, size, rcFirst, size);
    picture.m_dc.DrawDragRect(CRect(), size, rcSecond, size);
    EXPECT_EQ(picture.Count(RGB(255, 255, 255)), 40 * 40);
}

TEST(Metafiles, PlayWhatWasDrawn) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    for (const bool bEnhanced : {false, true}) {
        MemoryPicture picture;
        CMetaFileDC meta;
        ASSERT_TRUE(bEnhanced ? meta.CreateEnhanced(nullptr, nullptr, nullptr, nullptr)
                              : meta.Create());
        meta.SetAttribDC(picture.m_dc);
        CBrush brush(RGB(255, 0, 0));
        meta.SelectObject(HGDIOBJ(brush));
        meta.PatBlt(0, 0, 10, 10, PATCOPY);
        meta.SelectStockObject(NULL_BRUSH);
        meta.ReleaseAttribDC();
        if (bEnhanced) {
            const HENHMETAFILE hMeta = meta.CloseEnhanced();
            EXPECT_TRUE(picture.m_dc.PlayMetaFile(hMeta, CRect(0, 0, 20, 20)));
            ::DeleteEnhMetaFile(hMeta);
            EXPECT_GT(picture.Count(RGB(255, 0, 0)), 200);
        } else {
            const HMETAFILE hMeta = meta.Close();
            EXPECT_TRUE(picture.m_dc.PlayMetaFile(hMeta));
            ::DeleteMetaFile(hMeta);
            EXPECT_EQ(picture.Count(RGB(255, 0, 0)), 100);
        }
        CMetaFileDC dropped;
        dropped.Create();
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

TEST(DeviceContextShapes, BlendFillAndClip) {
    MemoryPicture picture;
    MemoryPicture source;
    source.m_dc.FillSolidRect(0, 0, 40, 40, RGB(0, 0, 0));
    EXPECT_TRUE(picture.m_dc.AlphaBlend(0, 0, 10, 10, &source.m_dc, 0, 0, 10, 10,
                                        BLENDFUNCTION{AC_SRC_OVER, 0, 128, 0}));
    EXPECT_NEAR(GetRValue(picture.m_dc.GetPixel(5, 5)), 127, 2);
    TRIVERTEX corners[] = {{0, 20, 0xFF00, 0, 0, 0}, {40, 40, 0, 0, 0xFF00, 0}};
    GRADIENT_RECT mesh = {0, 1};
    EXPECT_TRUE(picture.m_dc.GradientFill(corners, 2, &mesh, 1, GRADIENT_FILL_RECT_H));
    EXPECT_GT(GetRValue(picture.m_dc.GetPixel(2, 30)), GetRValue(picture.m_dc.GetPixel(37, 30)));
    EXPECT_TRUE(picture.m_dc.BeginPath());
    picture.m_dc.Rectangle(20, 0, 30, 10);
    EXPECT_TRUE(picture.m_dc.EndPath() && picture.m_dc.SelectClipPath(RGN_COPY));
    picture.m_dc.FillSolidRect(0, 0, 40, 20, RGB(0, 255, 0));
    EXPECT_NEAR(picture.Count(RGB(0, 255, 0)), 100, 20);
    CSize inch(2540, 2540);
    picture.m_dc.HIMETRICtoDP(&inch);
    EXPECT_EQ(inch.cx, picture.m_dc.GetDeviceCaps(LOGPIXELSX));
}

class Tracked : public CRectTracker {
public:
    using CRectTracker::CRectTracker;
    int m_nChanges = 0;
    void OnChangedRect(const CRect&) override { ++m_nChanges; }
};

TEST(RectTracker, MovesAndSizesByTheMouse) {
    CWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.ShowWindow(SW_SHOWNA);
    const struct {
        CPoint ptFrom, ptTo;
        BOOL bInvert;
        UINT nEnd;
        CRect rcAfter;
    } kCases[] = {
        {{50, 45}, {60, 47}, FALSE, WM_LBUTTONUP, {30, 22, 90, 82}},    // the whole of it
        {{20, 20}, {25, 15}, FALSE, WM_LBUTTONUP, {25, 15, 80, 80}},    // upper left handle
        {{79, 79}, {10, 90}, FALSE, WM_LBUTTONUP, {20, 20, 32, 91}},    // not less than its least
        {{79, 79}, {9, 90}, TRUE, WM_LBUTTONUP, {20, 20, 10, 91}},      // turned over
        {{50, 45}, {60, 47}, FALSE, WM_RBUTTONDOWN, {20, 20, 80, 80}},  // taken back
        {{5, 5}, {60, 47}, FALSE, WM_LBUTTONUP, {20, 20, 80, 80}},      // outside
    };
    for (const auto& test : kCases) {
        Tracked tracker(CRect(20, 20, 80, 80), CRectTracker::resizeInside);
        wnd.PostMessage(WM_MOUSEMOVE, 0, MAKELPARAM(test.ptTo.x, test.ptTo.y));
        wnd.PostMessage(test.nEnd, 0, MAKELPARAM(test.ptTo.x, test.ptTo.y));
        EXPECT_EQ(tracker.Track(&wnd, test.ptFrom, test.bInvert),
                  test.rcAfter != CRect(20, 20, 80, 80));
        EXPECT_EQ(tracker.m_rect, test.rcAfter) << test.ptFrom.x << "," << test.ptTo.x;
        MSG msg;
        while (::PeekMessage(&msg, wnd, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE)) {
        }
    }
    CRectTracker over(CRect(80, 20, 20, 80),
                      CRectTracker::resizeOutside | CRectTracker::dottedLine);
    EXPECT_EQ(over.HitTest(CPoint(17, 17)), CRectTracker::hitTopRight) << "handles keep numbers";
    EXPECT_EQ(over.NormalizeHit(CRectTracker::hitTopRight), CRectTracker::hitTopLeft);
    EXPECT_EQ(over.HitTest(CPoint(50, 50)), CRectTracker::hitMiddle);
    EXPECT_EQ(over.HitTest(CPoint(5, 50)), CRectTracker::hitNothing);
}

}  // namespace
