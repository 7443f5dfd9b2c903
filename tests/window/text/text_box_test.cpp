#include "support/monkey.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kBoxId = 81;
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
const CRect kPlace(60, 40, 200, 64);

// What only derived classes see.
class OpenBox : public Mortal<Watched<QVTextBox>> {
public:
    using QVTextBox::m_aTexts;
    using QVTextBox::m_nCurText;
    using QVTextBox::m_spin;

    std::string Text() {
        CString str;
        GetWindowText(str);
        return std::string(str);
    }
};

class TextBox : public testing::Test, protected FontParent {
protected:
    TextBox() : FontParent(CSize(300, 200)), pBox(new OpenBox) {
        pBox->Create(kBoxId, kPlace, this);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (wParam == MAKEWPARAM(kBoxId, 8) && lParam == 0) {
            ++nChoices;
            m_answer();
        }
        return FontParent::OnCommand(wParam, lParam);
    }
    CRect RectOf(const CWnd& wnd) {
        CRect rc;
        wnd.GetWindowRect(&rc);
        ScreenToClient(&rc);
        return rc;
    }

    int nChoices = 0;
    std::function<void()> m_answer = [] {};
    std::unique_ptr<OpenBox> pBox;
};

TEST_F(TextBox, AnItemKeepsItsCaptionWhateverTheListIs) {
    EXPECT_EQ(pBox->GetStyle() & 0xFFFF0000, DWORD{WS_CHILD | WS_VISIBLE | WS_TABSTOP});
    EXPECT_TRUE(pBox->GetExStyle() & WS_EX_STATICEDGE);
    ::CreateWindow("STATIC", "a caption", WS_CHILD, 0, 0, 90, 24, m_hWnd,
                   reinterpret_cast<HMENU>(UINT_PTR{kBoxId + 1}), nullptr, nullptr);
    OpenBox box;
    box.SetTextList("one\ttwo");
    EXPECT_EQ(box.Initialize(kBoxId + 2, this), 0);
    ASSERT_EQ(box.Initialize(kBoxId + 1, this), 1);
    EXPECT_EQ(box.Text(), "a caption");
    EXPECT_NE(box.m_spin.m_hWnd, nullptr);
}

TEST_F(TextBox, TheSpinButtonIsInsideAndFollowsAndTheBoxStays) {
    pBox->SetTextList("one\ttwo\tthree");
    EXPECT_EQ(RectOf(*pBox), kPlace) << "the platform would move and narrow it";
    for (const CRect& rc : {kPlace, CRect(10, 90, 100, 121)}) {
        pBox->SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(), SWP_NOZORDER);
        EXPECT_EQ(RectOf(*pBox), rc);
        EXPECT_EQ(RectOf(pBox->m_spin), CRect(rc.right - 2 - ::GetSystemMetrics(SM_CXHSCROLL),
                                              rc.top + 2, rc.right - 2, rc.bottom - 2));
    }
    pBox->SetTextList("four\tfive");
    pBox->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 2));
    EXPECT_EQ(pBox->Text(), "four") << "beyond the list";
    EXPECT_EQ(pBox->nThrown, 0);
}

TEST_F(TextBox, TextsThatAreSetFindTheirPlace) {
    pBox->SetTextList("one\ttwo\tTHREE\ttwo");
    const struct {
        const char* pszText;
        int nCurText, nSpin;
    } cases[] = {{"TWO", 1, 1}, {"three", 2, 2}, {"four", -1, 2}, {"one", 0, 0}, {nullptr, -1, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(pBox->SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(c.pszText)), 1);
        EXPECT_EQ(pBox->Text(), c.pszText != nullptr ? c.pszText : "");
        EXPECT_EQ(pBox->m_nCurText, c.nCurText);
        EXPECT_EQ(LOWORD(pBox->m_spin.GetPos()), c.nSpin);
    }
}

TEST_F(TextBox, ClicksAndKeysStepRoundAndRound) {
    pBox->SetTextList("one\ttwo\tthree");
    const auto click = [&](int nQuarter) {
        const CRect rc = RectOf(pBox->m_spin);
        ClickAt(m_hWnd, CPoint(rc.CenterPoint().x, rc.top + nQuarter * rc.Height() / 4));
    };
    const auto enable = [&](int bEnable) { pBox->EnableWindow(bEnable); };
    const auto key = [&](int vk) { ClickAt(pBox->m_hWnd, {5, 5}), TypeKey(static_cast<WORD>(vk)); };
    const std::tuple<std::function<void(int)>, int, const char*> cases[] = {
        {click, 1, "two"},   {click, 3, "one"},    {click, 3, "three"}, {enable, 0, "three"},
        {click, 1, "three"}, {enable, 1, "three"}, {key, VK_UP, "one"}, {key, VK_DOWN, "three"}};
    for (const auto& [act, n, pszText] : cases) {
        act(n);
        EXPECT_EQ(pBox->Text(), pszText);
    }
    EXPECT_EQ(nChoices, 5);
    m_answer = [&] { pBox.reset(); };
    click(1);
    EXPECT_EQ(pBox, nullptr) << "deleted at a choice";
}

TEST_F(TextBox, ColoursAlignmentAndImageShow) {
    pBox->SetTextColor(kRed);
    pBox->SetWindowText("MM");
    CImageList images;
    images.Create(10, 12, ILC_COLOR24, 1, 1);
    CBitmap bitmap;
    bitmap.CreateBitmap(10, 12, 1, 32, std::vector<DWORD>(120, 0x000000FF).data());
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    const int cx = 138, cy = 22, cxProbe = 3;
    const struct {
        DWORD dwAlign;
        int nImage, nInk, bEnabled = 1;  // where the text begins, or has its middle or end
    } cases[] = {{SS_LEFT, -1, 2},        {SS_LEFT, 7, 2},       {SS_LEFT, 0, 16},
                 {SS_CENTER, -1, cx / 2}, {SS_RIGHT, 0, cx - 5}, {SS_LEFT, -1, 2, 0}};
    for (const auto& c : cases) {
        pBox->ModifyStyle(SS_TYPEMASK, c.dwAlign);
        pBox->SetImage(&images, c.nImage);
        pBox->EnableWindow(c.bEnabled);
        pBox->Invalidate(TRUE);
        const Picture picture = Picture::OfClient(pBox->m_hWnd);
        EXPECT_EQ(picture.Count(kBlue, CRect(2, 5, 12, 17)), c.nImage == 0 ? 120 : 0);
        const COLORREF crText = c.bEnabled ? kRed : ::GetSysColor(COLOR_GRAYTEXT);
        EXPECT_GT(picture.Count(crText), 5);
        const CRect rcProbe(c.nInk, 0, c.nInk + cxProbe, cy);
        EXPECT_LT(picture.Count(::GetSysColor(COLOR_BTNFACE), rcProbe), cxProbe * cy - 3) << c.nInk;
        EXPECT_EQ(picture.Count(crText, CRect(0, 0, c.nInk - 24, cy)), 0);
    }
}

using TextBoxMonkey = TextBox;

TEST_F(TextBoxMonkey, SurvivesAnyOrderOfMessagesAndTheWantOfMemory) {
    pBox.reset();
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(5);
    m_answer = [&] { random() % 2 == 0 ? pBox.reset() : pBox->SetTextList("x\ty"); };
    const char* const kLists[] = {"", "one", "one\ttwo", "\t\t\t", "a\tb\tc\td\te", nullptr};
    int nMade = 0;
    for (int i = 0; i < MonkeySteps() || nMade < 1000; ++i) {
        if (pBox == nullptr || random() % 4 == 0) {
            pBox = std::make_unique<OpenBox>();
            pBox->SetTextList(kLists[++nMade % std::size(kLists)]);
            ASSERT_TRUE(pBox->Create(kBoxId, kPlace, this));
        }
        const int n = static_cast<int>(random() % 60) - 5;
        const std::function<void()> kDeeds[] = {
            [&] { pBox->SetTextList(kLists[random() % std::size(kLists)]); },
            [&] { pBox->SendMessage(WM_VSCROLL, MAKEWPARAM(random() % 10, n)); },
            [&] { pBox->SendMessage(WM_KEYDOWN, n % 2 != 0 ? VK_UP : VK_DOWN); },
            [&] { pBox->SetWindowPos(nullptr, n, n, n * 3, n, SWP_NOZORDER); },
            [&] { pBox->SetImage(nullptr, n), pBox->Invalidate(TRUE), pBox->UpdateWindow(); },
            [&] { pBox->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, n * WHEEL_DELTA)); }};
        kDeeds[random() % std::size(kDeeds)]();
        const int nCur = pBox != nullptr ? pBox->m_nCurText : -1;
        ASSERT_TRUE(nCur < 0 || nCur >= pBox->m_aTexts.GetSize() ||
                    pBox->Text() == std::string(pBox->m_aTexts[nCur]));
    }
    pBox.reset();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    OpenBox box;
    RefuseEach(
        "all",
        [&] {
            box.SetTextList("some text that is long enough\tand another one");
            box.m_hWnd != nullptr || box.Create(kBoxId, kPlace, this);
            ::SetWindowText(box.m_hWnd, "a text of its own, long enough");
            ::RedrawWindow(box.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        },
        [&] { EXPECT_EQ(box.m_aTexts.GetSize() % 2 + box.nThrown, 0) << "whole or empty"; });
}

}  // namespace
