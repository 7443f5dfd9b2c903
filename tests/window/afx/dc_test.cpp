// Device contexts: owners, the two contexts behind one object, coordinates, edges.
#include <afxwin.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/// An object that draws on one context and answers from another.
class TwoContexts : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_dc.CreateCompatibleDC(nullptr));
        ASSERT_TRUE(m_attrib.CreateCompatibleDC(nullptr));
        m_dc.SetAttribDC(m_attrib);
    }
    CDC m_dc;
    CDC m_attrib;
};

TEST(DeviceContexts, AreDeletedOrReleasedByTheirObjects) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    HDC hDC = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        hDC = dc.Detach();
        EXPECT_EQ(dc.m_hAttribDC, nullptr);
        EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
        EXPECT_FALSE(dc.Attach(nullptr));
        EXPECT_TRUE(dc.Attach(hDC));
        const CClientDC client(CWnd::GetDesktopWindow());
        const CWindowDC window(nullptr);
        EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned + 3);
    }
    EXPECT_EQ(::GetObjectType(hDC), 0u);
    CDC none;
    EXPECT_FALSE(none.CreateDC("no such driver", nullptr, nullptr, nullptr));
    CWnd gone;
    gone.m_hWnd = reinterpret_cast<HWND>(INT_PTR{4});
    EXPECT_THROW(CClientDC{&gone}, CResourceException*);
    gone.m_hWnd = nullptr;
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

TEST_F(TwoContexts, TheAttributesBelongToSomebodyElse) {
    m_dc.DeleteDC();
    EXPECT_EQ(::GetObjectType(m_attrib), UINT{OBJ_MEMDC});
    ASSERT_TRUE(m_dc.CreateCompatibleDC(nullptr));
    m_dc.ReleaseAttribDC();
    m_dc.SetTextColor(RGB(1, 2, 3));
    EXPECT_EQ(::GetTextColor(m_dc), RGB(1, 2, 3)) << "drawing goes on without them";
}

/// A mode that a call sets in both contexts and gives back from the attributes'.
#define EXPECT_MODE_OF_BOTH(Mode, first, second)   \
    m_dc.Set##Mode(first);                         \
    EXPECT_EQ(::Get##Mode(m_dc.m_hDC), first);     \
    EXPECT_EQ(::Get##Mode(m_attrib.m_hDC), first); \
    ::Set##Mode(m_attrib.m_hDC, second);           \
    EXPECT_EQ(m_dc.Get##Mode(), second);           \
    EXPECT_EQ(m_dc.Set##Mode(first), second)

TEST_F(TwoContexts, ModesAreSetInBothAndAskedOfTheAttributes) {
    EXPECT_MODE_OF_BOTH(BkMode, TRANSPARENT, OPAQUE);
    EXPECT_MODE_OF_BOTH(ROP2, R2_XORPEN, R2_COPYPEN);
    EXPECT_MODE_OF_BOTH(MapMode, MM_TWIPS, MM_TEXT);
    EXPECT_MODE_OF_BOTH(TextCharacterExtra, 3, 0);
    EXPECT_MODE_OF_BOTH(StretchBltMode, HALFTONE, COLORONCOLOR);
    EXPECT_MODE_OF_BOTH(PolyFillMode, WINDING, ALTERNATE);
    EXPECT_MODE_OF_BOTH(BkColor, RGB(9, 9, 9), RGB(1, 1, 1));
    EXPECT_MODE_OF_BOTH(TextColor, RGB(9, 9, 9), RGB(1, 1, 1));
    EXPECT_MODE_OF_BOTH(TextAlign, UINT{TA_RIGHT}, UINT{TA_LEFT});
}

TEST_F(TwoContexts, SelectionsReachBothButForBitmaps) {
    CPen pen(PS_SOLID, 3, RGB(0, 0, 0));
    CPen* pOld = m_dc.SelectObject(&pen);
    EXPECT_EQ(::GetCurrentObject(m_attrib, OBJ_PEN), pen.m_hObject);
    EXPECT_EQ(m_dc.SelectObject(pOld), &pen);
    EXPECT_EQ(::GetCurrentObject(m_attrib, OBJ_PEN), ::GetStockObject(BLACK_PEN));
    CBitmap bitmap;
    bitmap.CreateBitmap(5, 5, 1, 1, nullptr);
    const HGDIOBJ hAttribBitmap = ::GetCurrentObject(m_attrib, OBJ_BITMAP);
    CBitmap* pOldBitmap = m_dc.SelectObject(&bitmap);
    EXPECT_EQ(::GetCurrentObject(m_dc, OBJ_BITMAP), bitmap.m_hObject);
    EXPECT_EQ(::GetCurrentObject(m_attrib, OBJ_BITMAP), hAttribBitmap);
    EXPECT_EQ(m_dc.SelectObject(pOldBitmap), &bitmap);
}

TEST_F(TwoContexts, BothComeBackToWhatWasSaved) {
    ::SaveDC(m_attrib);  // somebody's before
    const auto expectBoth = [&](COLORREF cr) {
        EXPECT_EQ(::GetTextColor(m_dc), cr);
        EXPECT_EQ(::GetTextColor(m_attrib), cr);
    };
    m_dc.SetTextColor(1);
    const int nFirst = m_dc.SaveDC();
    m_dc.SetTextColor(2);
    m_dc.SaveDC();
    m_dc.SetTextColor(3);
    EXPECT_TRUE(m_dc.RestoreDC(-1));
    expectBoth(2);
    EXPECT_TRUE(m_dc.RestoreDC(nFirst));
    expectBoth(1);
    EXPECT_FALSE(m_dc.RestoreDC(nFirst)) << "used up";
    expectBoth(1);
}

TEST_F(TwoContexts, CoordinatesGoByTheAttributes) {
    m_dc.SetMapMode(MM_ANISOTROPIC);
    m_dc.SetWindowExt(200, -400);
    m_dc.SetViewportExt(CSize(100, 100));
    m_dc.SetWindowOrg(10, 20);
    EXPECT_EQ(m_dc.OffsetWindowOrg(10, 20), CPoint(10, 20));
    m_dc.SetViewportOrg(CPoint(5, 6));
    EXPECT_EQ(m_dc.OffsetViewportOrg(1, 1), CPoint(5, 6));
    CRect rc(6, 7, 16, 17);
    ::DPtoLP(m_dc.m_hDC, reinterpret_cast<POINT*>(&rc), 2);
    EXPECT_EQ(rc, CRect(20, 40, 40, 0)) << "drawing follows";
    ::SetWindowOrgEx(m_dc.m_hDC, 0, 0, nullptr);
    m_dc.LPtoDP(rc);
    EXPECT_EQ(rc, CRect(6, 7, 16, 17));
    CSize extent(20, 40);
    m_dc.LPtoDP(&extent);
    EXPECT_EQ(extent, CSize(10, 10)) << "a size has no direction";
    m_dc.DPtoLP(&extent);
    EXPECT_EQ(extent, CSize(20, 40));
}

TEST(DeviceContexts, DrawEdgesOfOnePixel_WhoseCornersBelongToTheLowerRight) {
    constexpr COLORREF kRed = RGB(255, 0, 0);
    constexpr COLORREF kBlue = RGB(0, 0, 255);
    CDC dc;
    CBitmap bitmap;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    ASSERT_TRUE(bitmap.CreateBitmap(5, 4, 1, 32, nullptr));
    CBitmap* pOld = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 5, 4, 0);
    dc.Draw3dRect(CRect(1, 0, 5, 3), kRed, kBlue);
    std::string strShown;
    for (int i = 0; i < 5 * 4; ++i) {
        const COLORREF cr = dc.GetPixel(i % 5, i / 5);
        strShown += cr == kRed ? 'r' : cr == kBlue ? 'b' : '.';
    }
    EXPECT_EQ(strShown,
              ".rrrb"
              ".r..b"
              ".bbbb"
              ".....");
    dc.SelectObject(pOld);
}

}  // namespace
