#include "QVControls.h"
#include "support/picture.h"
#include "support/recording_parent.h"

#include <gtest/gtest.h>

namespace {

class Painted : public QVCustCtrl {
public:
    int Initialize(UINT nID, CWnd* pParent) override {
        ++m_nInitialized;
        m_nGivenId = nID;
        return QVCustCtrl::Initialize(nID, pParent) && m_bAccepts;
    }
    void Draw(CDC& dc, const CRect& rect) override {
        ++m_nDrawn;
        m_bOnScreen = dc.GetWindow() != nullptr;
        // In two layers: the first one must never reach the screen.
        dc.FillSolidRect(&rect, RGB(255, 0, 0));
        dc.FillSolidRect(&rect, RGB(0, 0, 255));
    }
    bool m_bAccepts = true;
    bool m_bOnScreen = true;
    UINT m_nGivenId = 0;
    int m_nInitialized = 0;
    int m_nDrawn = 0;
};

TEST(CustCtrl, CreateMeetsInitializeOnceWithTheWindowThere) {
    RecordingParent parent;
    Painted control;
    control.ModifyDefStyle(WS_TABSTOP, WS_BORDER);
    ASSERT_TRUE(control.Create(42, CRect(10, 10, 110, 60), &parent));
    EXPECT_EQ(control.m_nInitialized, 1);
    EXPECT_EQ(control.m_nGivenId, 42u);
    EXPECT_EQ(control.GetDlgCtrlID(), 42);
    EXPECT_TRUE(control.GetStyle() & WS_BORDER);
    EXPECT_FALSE(control.GetStyle() & WS_TABSTOP);
    control.ModifyDefStyle(WS_BORDER, 0);
    EXPECT_TRUE(control.GetStyle() & WS_BORDER) << "an existing window keeps its style";
    EXPECT_EQ(control.Initialize(999, &parent), 1) << "it has a window";
}

TEST(CustCtrl, RefusedInitializationLeavesNoWindow) {
    RecordingParent parent;
    Painted control;
    control.m_bAccepts = false;
    EXPECT_FALSE(control.Create(42, CRect(0, 0, 50, 50), &parent));
    EXPECT_EQ(control.m_hWnd, nullptr);
    EXPECT_EQ(::GetDlgItem(parent.m_hWnd, 42), nullptr);
    QVCustCtrl attached;
    EXPECT_EQ(attached.Initialize(4711, &parent), 0) << "no such item";
}

TEST(CustCtrl, AttachesToAnItemOfADialog) {
    RecordingParent parent;
    CStatic item;
    item.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 43);
    const HWND hItem = item.UnsubclassWindow();
    Painted control;
    EXPECT_EQ(control.Initialize(43, &parent), 1);
    EXPECT_EQ(control.m_hWnd, hItem);
}

TEST(CustCtrl, WritesEachPixelOfTheScreenOnceAPaint) {
    RecordingParent parent;
    Painted control;
    control.Create(42, CRect(0, 0, 120, 80), &parent);
    const LONG nHandles = AfxGetOwnedHandleCount();
    control.Invalidate();
    control.UpdateWindow();
    EXPECT_FALSE(control.m_bOnScreen) << "Draw works on a memory bitmap";
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    const Picture shown = Picture::OfClient(control.m_hWnd);
    EXPECT_EQ(shown.Count(RGB(0, 0, 255)), 120 * 80);

    // A paint of a part writes that part alone: what stands elsewhere on the screen stays.
    {
        CClientDC dc(&control);
        dc.FillSolidRect(100, 60, 20, 20, RGB(0, 255, 0));
    }
    const CRect rcPart(0, 0, 50, 50);
    const int nDrawn = control.m_nDrawn;
    control.InvalidateRect(&rcPart, FALSE);
    control.UpdateWindow();
    EXPECT_EQ(control.m_nDrawn, nDrawn + 1);
    const Picture after = Picture::OfClient(control.m_hWnd);
    EXPECT_EQ(after.Count(RGB(0, 255, 0)), 20 * 20);
    EXPECT_EQ(after.Count(RGB(255, 0, 0)), 0);
}

TEST(CustCtrl, FillsWithTheButtonFaceByItself) {
    RecordingParent parent;
    QVCustCtrl control;
    control.Create(1, CRect(0, 0, 30, 20), &parent);
    EXPECT_EQ(Picture::OfClient(control.m_hWnd).Count(::GetSysColor(COLOR_BTNFACE)), 30 * 20);
}

TEST(Module, ResourcesAndClassesAreFoundAlongTheChain) {
    const HMODULE hModule = ::GetModuleHandle("CONTROLS.dll");
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(30008), RT_BITMAP), hModule);
    CString strText;
    EXPECT_FALSE(strText.LoadString(30508));
    EXPECT_NE(CRuntimeClass::FromName("QVCustCtrl"), nullptr);
    EXPECT_NE(CRuntimeClass::FromName("CWnd"), nullptr) << "the caller's own list is whole";
    CDynLinkLibrary* pEntry = InitQVControlExtensionDLL();
    EXPECT_NE(pEntry, nullptr) << "joining twice does no harm";
    EXPECT_TRUE(strText.LoadString(30502));
    EXPECT_STREQ(strText, "Select");
}

}  // namespace
