#include "support/one_color_image.h"
#include "window/text/edit_window.h"

namespace {

constexpr UINT kBoxId = 81;
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

class TextBox : public EditWindow<OpenBox> {
protected:
    TextBox() { Make("one\ttwo\tTHREE"); }
    void Make(const char* pszList) {
        pEdit = std::make_unique<OpenBox>();
        pEdit->SetTextList(pszList);
        pEdit->Create(kBoxId, kPlace, this);
    }
    CRect RectOf(const CWnd& wnd) {
        CRect rc;
        wnd.GetWindowRect(&rc);
        ScreenToClient(&rc);
        return rc;
    }
    void OnChoice(const std::function<void()>& act) {
        m_told = [=](WPARAM wParam, LPARAM lParam) {
            wParam == MAKEWPARAM(kBoxId, 8) && lParam == 0 ? act() : void();
        };
    }
};

TEST_F(TextBox, AnItemKeepsItsCaptionWhateverTheListIs) {
    EXPECT_EQ(pEdit->GetStyle() & 0xFFFF0000 & ~WS_CLIPCHILDREN, 0x50010000u);
    EXPECT_TRUE(pEdit->GetExStyle() & WS_EX_STATICEDGE);
    CStatic item;
    item.Create("a caption", WS_CHILD, kPlace, this, kBoxId + 1);
    item.Detach();
    OpenBox box;
    box.SetTextList("one\ttwo");
    EXPECT_EQ(box.Initialize(kBoxId + 2, this), 0);
    ASSERT_EQ(box.Initialize(kBoxId + 1, this), 1);
    EXPECT_EQ(box.Text(), "a caption");
    EXPECT_NE(box.m_spin.m_hWnd, nullptr);
}

TEST_F(TextBox, TheSpinButtonIsInsideAndFollowsAndTheBoxStays) {
    EXPECT_EQ(RectOf(*pEdit), kPlace) << "the platform would move and narrow it";
    for (const CRect& rc : {kPlace, CRect(10, 90, 100, 121)}) {
        pEdit->MoveWindow(&rc);
        EXPECT_EQ(RectOf(pEdit->m_spin), CRect(rc.right - 2 - ::GetSystemMetrics(SM_CXHSCROLL),
                                               rc.top + 2, rc.right - 2, rc.bottom - 2));
    }
    pEdit->SetTextList("four\tfive");
    pEdit->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 2));
    EXPECT_EQ(pEdit->Text(), "four") << "beyond the list";
}

TEST_F(TextBox, TextsThatAreSetFindTheirPlace) {
    pEdit->SetTextList("one\ttwo\tTHREE\ttwo");
    for (const auto& [pszText, nCurText, nSpin] : {std::tuple<const char*, int, int>("TWO", 1, 1),
                                                   {"three", 2, 2},
                                                   {"four", -1, 2},
                                                   {nullptr, -1, 2}}) {
        EXPECT_EQ(pEdit->SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(pszText)), 1);
        EXPECT_EQ(pEdit->Text(), pszText != nullptr ? pszText : "");
        EXPECT_EQ(pEdit->m_nCurText, nCurText);
        EXPECT_EQ(LOWORD(pEdit->m_spin.GetPos()), nSpin);
    }
}

TEST_F(TextBox, ClicksAndKeysStepRoundAndRound) {
    const auto click = [&](int nQuarter) {
        const CRect rc = RectOf(pEdit->m_spin);
        ClickAt(m_hWnd, CPoint(rc.CenterPoint().x, rc.top + nQuarter * rc.Height() / 4));
    };
    const auto enable = [&](int bEnable) { pEdit->EnableWindow(bEnable); };
    const auto key = [&](int vk) {
        ClickAt(pEdit->m_hWnd, {5, 5}), TypeKey(static_cast<WORD>(vk));
    };
    int nChoices = 0;
    OnChoice([&] { ++nChoices; });
    const std::tuple<std::function<void(int)>, int, const char*> cases[] = {
        {click, 1, "two"},   {click, 3, "one"},    {click, 3, "THREE"}, {enable, 0, "THREE"},
        {click, 1, "THREE"}, {enable, 1, "THREE"}, {key, VK_UP, "one"}, {key, VK_DOWN, "THREE"}};
    for (const auto& [act, n, pszText] : cases) {
        act(n);
        EXPECT_EQ(pEdit->Text(), pszText);
    }
    EXPECT_EQ(nChoices, 5);
    OnChoice([&] { pEdit.reset(); });
    click(1);
    EXPECT_EQ(pEdit, nullptr) << "deleted at a choice";
}

TEST_F(TextBox, ColoursAlignmentAndImageShow) {
    constexpr COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255);
    OneColorImage image(CSize(10, 12), kBlue);
    Make("MM");
    pEdit->SetTextColor(kRed);
    const struct {
        DWORD dwAlign;
        int nImage, nInk, bEnabled = 1;  // where the text begins, or has its middle or end
    } cases[] = {{SS_LEFT, -1, 2},    {SS_LEFT, 7, 2},    {SS_LEFT, 0, 16},
                 {SS_CENTER, -1, 69}, {SS_RIGHT, 0, 133}, {SS_LEFT, -1, 2, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        pEdit->ModifyStyle(SS_TYPEMASK, c.dwAlign);
        pEdit->SetImage(&image, c.nImage);
        pEdit->EnableWindow(c.bEnabled);
        pEdit->Invalidate(TRUE);
        const Picture shown = Picture::OfClient(pEdit->m_hWnd);
        EXPECT_EQ(shown.Count(kBlue, CRect(2, 5, 12, 17)), c.nImage == 0 ? 120 : 0);
        const COLORREF crText = c.bEnabled ? kRed : ::GetSysColor(COLOR_GRAYTEXT);
        EXPECT_GT(shown.Count(crText), 5);
        const CRect rcProbe(c.nInk, 0, c.nInk + 3, 22);
        EXPECT_LT(shown.Count(::GetSysColor(COLOR_BTNFACE), rcProbe), 3 * 22 - 3);
        EXPECT_EQ(shown.Count(crText, CRect(0, 0, c.nInk - 24, 22)), 0);
    }
}

using TextBoxMonkey = TextBox;

TEST_F(TextBoxMonkey, SurvivesAnyOrderOfMessagesAndTheWantOfMemory) {
    const char* const kLists[] = {"", "one", "one\ttwo", "\t\t\t", nullptr};
    int nChosen = 0;
    OnChoice([&] { ++nChosen % 2 == 0 ? pEdit.reset() : pEdit->SetTextList("x\ty"); });
    int nMade = 0;
    pEdit.reset();
    PlayInAnyOrder(
        pEdit, [&] { Make(kLists[++nMade % 5]); },
        {[&](int n) { pEdit->SetTextList(kLists[(n + 5) % 5]); },
         [&](int n) { pEdit->SendMessage(WM_VSCROLL, MAKEWPARAM((n + 5) % 10, n)); },
         [&](int n) { pEdit->SendMessage(WM_KEYDOWN, n % 2 != 0 ? VK_UP : VK_DOWN); },
         [&](int n) { pEdit->MoveWindow(n, n, n * 3, n), pEdit->UpdateWindow(); },
         [&](int n) { pEdit->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, n * WHEEL_DELTA)); }});
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
