// Image lists: who owns the handle, and which image is where.
#include <afxcmn.h>

#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr COLORREF kMask = RGB(0, 128, 128);
constexpr COLORREF kGround = RGB(9, 9, 9);
constexpr int kSize = 8;

/// A strip of squares, each of one colour.
void MakeStrip(CBitmap& bitmap, const std::vector<COLORREF>& colours) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const int nWidth = kSize * static_cast<int>(colours.size());
    ASSERT_TRUE(bitmap.CreateBitmap(nWidth, kSize, 1, 32, nullptr));
    CBitmap* pOld = dc.SelectObject(&bitmap);
    int x = -kSize;
    for (const COLORREF cr : colours) {
        dc.FillSolidRect(x += kSize, 0, kSize, kSize, cr);
    }
    dc.SelectObject(pOld);
}

class ImageList : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_list.Create(kSize, kSize, ILC_COLOR24 | ILC_MASK, 1, 1));
        CBitmap strip;
        MakeStrip(strip, {RGB(255, 0, 0), kMask, RGB(0, 0, 255)});
        ASSERT_EQ(m_list.Add(&strip, kMask), 0) << "the first of what was added";
    }
    static COLORREF Shown(CImageList& list, int nImage) {
        CBitmap ground;
        MakeStrip(ground, {kGround});
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap* pOld = dc.SelectObject(&ground);
        EXPECT_TRUE(list.Draw(&dc, nImage, CPoint(0, 0), ILD_NORMAL));
        const COLORREF cr = dc.GetPixel(4, 4);
        dc.SelectObject(pOld);
        return cr;
    }
    const LONG m_nOwned = AfxGetOwnedHandleCount();
    CImageList m_list;
};

TEST_F(ImageList, ObjectsOwnTheirHandlesUntilTheyGo) {
    EXPECT_EQ(AfxGetOwnedHandleCount(), m_nOwned + 1);
    const HIMAGELIST hList = m_list.Detach();
    EXPECT_EQ(AfxGetOwnedHandleCount(), m_nOwned);
    EXPECT_EQ(CImageList::FromHandlePermanent(hList), nullptr);
    {
        CImageList owner;
        EXPECT_FALSE(owner.Attach(nullptr));
        EXPECT_TRUE(owner.Attach(hList));
        EXPECT_EQ(CImageList::FromHandlePermanent(hList), &owner);
        EXPECT_TRUE(owner.Create(kSize, kSize, ILC_COLOR24, 1, 1)) << "in place of the other";
        EXPECT_EQ(AfxGetOwnedHandleCount(), m_nOwned + 1);
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), m_nOwned);
    EXPECT_FALSE(m_list.Create(9999u, kSize, 1, kMask));
}

TEST_F(ImageList, ImagesAreCutFromAStripAndACopyHasItsOwn) {
    EXPECT_EQ(m_list.GetImageCount(), 3);
    CImageList copy;
    ASSERT_TRUE(copy.Create(&m_list));
    EXPECT_TRUE(m_list.Remove(0));
    EXPECT_EQ(Shown(m_list, 0), kGround) << "transparent";
    EXPECT_EQ(Shown(m_list, 1), RGB(0, 0, 255));
    EXPECT_TRUE(m_list.Remove(-1));
    EXPECT_EQ(m_list.GetImageCount(), 0);
    EXPECT_EQ(Shown(copy, 0), RGB(255, 0, 0));
}

}  // namespace
