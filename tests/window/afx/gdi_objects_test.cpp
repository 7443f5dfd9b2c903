// Pens, brushes, fonts, bitmaps, palettes, regions and image lists: who owns the handle, and what
// it was made of.
#include "window/afx/afx_test_ids.h"

#include <afxcmn.h>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

template <class Object, class... Arguments, class... Given>
std::unique_ptr<CGdiObject> Make(BOOL (Object::*create)(Arguments...), Given... given) {
    auto pObject = std::make_unique<Object>();
    EXPECT_TRUE((pObject.get()->*create)(given...));
    return pObject;
}

/// One of each kind.
std::vector<std::unique_ptr<CGdiObject>> MakeObjects() {
    LOGPALETTE palette{0x300, 1, {}};
    std::vector<std::unique_ptr<CGdiObject>> objects;
    objects.push_back(std::make_unique<CPen>(PS_SOLID, 1, RGB(1, 2, 3)));
    objects.push_back(std::make_unique<CBrush>(RGB(1, 2, 3)));
    objects.push_back(Make(&CFont::CreatePointFont, 90, "Tahoma", nullptr));
    objects.push_back(Make(&CBitmap::CreateBitmap, 8, 8, 1u, 1u, nullptr));
    objects.push_back(Make(&CPalette::CreatePalette, &palette));
    objects.push_back(Make(&CRgn::CreateRectRgn, 0, 0, 9, 9));
    return objects;
}

TEST(GdiObjects, OwnTheirHandlesUntilTheyGo) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    auto objects = MakeObjects();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned + static_cast<LONG>(objects.size()));
    for (auto& pObject : objects) {
        const LONG nBefore = AfxGetOwnedHandleCount();
        const HGDIOBJ hObject = pObject->m_hObject;
        const UINT nType = pObject->GetObjectType();
        EXPECT_EQ(pObject->Detach(), hObject);
        EXPECT_EQ(AfxGetOwnedHandleCount(), nBefore - 1);
        EXPECT_FALSE(pObject->DeleteObject());
        EXPECT_EQ(::GetObjectType(hObject), nType) << "the caller's now";
        EXPECT_NE(CGdiObject::FromHandle(hObject), pObject.get());
        EXPECT_TRUE(pObject->Attach(hObject));
        EXPECT_EQ(CGdiObject::FromHandle(hObject), pObject.get());
        pObject.reset();
        EXPECT_EQ(::GetObjectType(hObject), 0u);
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

TEST(GdiObjects, ANewHandleTakesThePlaceOfTheOldOne) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    CBrush brush(RGB(1, 1, 1));
    EXPECT_TRUE(brush.CreateSolidBrush(RGB(2, 2, 2)));
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned + 1);
    EXPECT_FALSE(brush.Attach(nullptr));
    LOGBRUSH log{};
    EXPECT_NE(brush.GetLogBrush(&log), 0) << "what fails changes nothing";
    EXPECT_EQ(log.lbColor, RGB(2, 2, 2));
    CBitmap none;
    EXPECT_THROW(CBrush{&none}, CResourceException*);
}

TEST(GdiObjects, TemporaryOnesLeaveTheHandleAlone) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    const HPEN hPen = ::CreatePen(PS_SOLID, 1, 0);
    CPen* pPen = CPen::FromHandle(hPen);
    EXPECT_EQ(CPen::FromHandle(hPen), pPen);
    EXPECT_EQ(CPen::FromHandle(nullptr)->GetSafeHandle(), nullptr);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(hPen), UINT{OBJ_PEN});
    ::DeleteObject(hPen);
    {
        CBrush system;
        EXPECT_TRUE(system.CreateSysColorBrush(COLOR_WINDOW));
        CFont stock;
        EXPECT_TRUE(stock.CreateStockObject(SYSTEM_FONT));
    }
    EXPECT_EQ(::GetObjectType(::GetSysColorBrush(COLOR_WINDOW)), UINT{OBJ_BRUSH});
    EXPECT_EQ(::GetObjectType(::GetStockObject(SYSTEM_FONT)), UINT{OBJ_FONT});
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

TEST(ImageLists, OwnTheirHandlesUntilTheyGo) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    CImageList list;
    ASSERT_TRUE(list.Create(8, 8, ILC_COLOR24 | ILC_MASK, 1, 1));
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned + 1);
    const HIMAGELIST hList = list.Detach();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
    EXPECT_EQ(CImageList::FromHandlePermanent(hList), nullptr);
    {
        CImageList owner;
        EXPECT_FALSE(owner.Attach(nullptr));
        EXPECT_TRUE(owner.Attach(hList));
        EXPECT_EQ(CImageList::FromHandlePermanent(hList), &owner);
        EXPECT_TRUE(owner.Create(8, 8, ILC_COLOR24, 1, 1)) << "in place of the other";
        EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned + 1);
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
    EXPECT_FALSE(list.Create(9999u, 8, 1, RGB(0, 128, 128)));
}

TEST(ImageLists, KeepTheColoursOfABitmapWithAPalette) {
    CImageList list;
    ASSERT_TRUE(list.Create(IDB_PALETTE, 8, 0, RGB(255, 0, 255)));
    EXPECT_EQ(list.GetImageCount(), 2);
    CClientDC dcScreen(nullptr);
    CDC dc;
    CBitmap bitmap;
    dc.CreateCompatibleDC(&dcScreen);
    bitmap.CreateCompatibleBitmap(&dcScreen, 16, 8);
    CBitmap* pOld = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 16, 8, RGB(1, 2, 3));
    list.Draw(&dc, 0, CPoint(0, 0), ILD_NORMAL);
    list.Draw(&dc, 1, CPoint(8, 0), ILD_NORMAL);
    EXPECT_EQ(dc.GetPixel(4, 4), RGB(200, 30, 40));
    EXPECT_EQ(dc.GetPixel(12, 4), RGB(30, 160, 70));
    EXPECT_EQ(dc.GetPixel(4, 7), RGB(1, 2, 3)) << "the mask's colour, the lowest line";
    dc.SelectObject(pOld);
}

TEST(GdiObjects, APointIsSoManyUnitsOfTheContext) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    const int nPixels = ::MulDiv(12, dc.GetDeviceCaps(LOGPIXELSY), 72);
    LOGFONT log{};
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "A name that is longer than a font's can be"));
    font.GetLogFont(&log);
    EXPECT_EQ(log.lfHeight, -nPixels);
    EXPECT_EQ(lstrlen(log.lfFaceName), LF_FACESIZE - 1);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(300, -300);
    dc.SetViewportExt(100, 100);
    dc.SetWindowOrg(50, 50);
    ASSERT_TRUE(font.CreatePointFont(120, "Tahoma", &dc));
    font.GetLogFont(&log);
    EXPECT_EQ(log.lfHeight, -3 * nPixels);
}

}  // namespace
