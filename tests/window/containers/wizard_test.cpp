// Wizards: the way from page to page, and the panel of steps.
#include "QVControls.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "window/containers/wizard_test_ids.h"

#include <utility>
#include <vector>

namespace {

class Page : public QVWizardPage {
public:
    using QVWizardPage::m_dwWizStepID;
    using QVWizardPage::m_StepWnd;
    using QVWizardPage::QVWizardPage;
    CString m_strText;
    std::function<bool()> m_check = [] { return true; };

    int ValidateData() override {
        const std::function<bool()> check = m_check;
        return check();  // may delete this
    }
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_WIZ_EDIT, m_strText); }
    // Beside no sheet.
    void Show(CWnd& parent, UINT nTemplate, UINT nStep) {
        m_dwWizStepID = nStep;
        Create(nTemplate, &parent);
        ShowWindow(SW_SHOW);
    }
    Picture Panel() {
        ::InvalidateRect(*GetDlgItem(kStepPanelID), nullptr, FALSE);
        return Picture::OfClient(*GetDlgItem(kStepPanelID));
    }
};

struct Wizard : testing::Test {
    Wizard() {
        TheTestApp().m_pMainWnd = &frame;
        for (Page* pPage : {&first, &second, &last}) {
            pPage->SetWizButtons(PSWIZB_BACK | PSWIZB_NEXT);
            w.AddPage(pPage);
            w.RegisterWizPage(pPage, "Step");
        }
    }
    ~Wizard() override { TheTestApp().m_pMainWnd = nullptr; }
    bool IsEnabled(int nID) { return w.GetDlgItem(nID)->IsWindowEnabled(); }
    void Click(int nID) { ClickAt(*w.GetDlgItem(nID), CPoint(10, 8)); }
    int Press(bool bNext, bool bByKey) {
        bByKey ? void(TypeKey(bNext ? VK_RETURN : 'B', false, false, !bNext))
               : Click(bNext ? ID_WIZNEXT : ID_WIZBACK);
        return w.GetActiveIndex();
    }

    RecordingParent frame;
    Page first{IDD_WIZ_FIRST}, second{IDD_WIZ_SECOND}, last{IDD_WIZ_LAST};
    QVWizard w{"Wizard"};
};

TEST_F(Wizard, LeadsToTheNeighbourOrWhereThePageSays) {
    w.Create(&frame);
    BringToFront(w);
    for (const bool bByKey : {false, true}) {
        first.SetNextPageID(IDD_WIZ_LAST);
        first.m_check = [] { return false; };
        EXPECT_EQ(Press(true, bByKey), 0) << "data that are not valid stay";
        first.m_check = [] { return true; };
        EXPECT_EQ(Press(true, bByKey), 2);
        last.m_check = [] { return ADD_FAILURE() << "Back asks nobody", false; };
        last.SetPrevPageID(IDD_WIZ_FIRST);
        EXPECT_EQ(Press(false, bByKey), 0);
        first.m_check = [&] { return first.SetNextPageID(0), true; };
        EXPECT_EQ(Press(true, bByKey), 1);
        EXPECT_EQ(Press(false, bByKey), 0);
    }
}

TEST_F(Wizard, ButtonsAreThoseOfTheActivation_AndFinishTakesValidDataOver) {
    first.SetWizButtons(PSWIZB_NEXT);
    second.SetWizButtons(PSWIZB_BACK | PSWIZB_FINISH);
    bool bValid = false;
    second.m_check = [&] { return bValid; };
    w.Create(&frame);
    PumpPending();
    first.SetWizButtons(PSWIZB_BACK);
    PumpPending();
    EXPECT_TRUE(IsEnabled(ID_WIZNEXT) && !IsEnabled(ID_WIZBACK)) << "not at once";
    Click(ID_WIZNEXT);
    second.SetDlgItemText(IDC_WIZ_EDIT, "typed");
    Click(ID_WIZFINISH);
    EXPECT_TRUE(w.m_hWnd != nullptr && second.m_strText.IsEmpty());
    bValid = true;
    Click(ID_WIZFINISH);
    EXPECT_EQ(w.m_hWnd, nullptr);
    EXPECT_STREQ(second.m_strText, "typed");
}

// Answers a message box by a real click, once it shows.
int s_nAnswer;
void CALLBACK AnswerBox(HWND, UINT, UINT_PTR nID, DWORD) {
    if (const HWND hButton = ::GetDlgItem(::GetForegroundWindow(), s_nAnswer)) {
        ::KillTimer(nullptr, nID);
        ClickAt(hButton, CPoint(5, 5));
    }
}

TEST_F(Wizard, CancelAsksWhereAQuestionWasSet) {
    TheTestApp().Forget();
    TheTestApp().m_bShowsBoxes = true;
    first.SetOnCancelMessageID(IDS_WIZ_CANCEL);
    w.Create(&frame);
    for (const int nAnswer : {IDNO, IDYES}) {
        ASSERT_NE(w.m_hWnd, nullptr);
        s_nAnswer = nAnswer;
        ::SetTimer(nullptr, 0, 10, AnswerBox);
        Click(IDCANCEL);
    }
    TheTestApp().m_bShowsBoxes = false;
    EXPECT_EQ(w.m_hWnd, nullptr);
    EXPECT_EQ(TheTestApp().m_prompts, std::vector<std::string>(2, "Really?"));
}

TEST(WizardPage, ACheckMayDeleteThePage) {
    for (const bool bFinish : {false, true}) {
        auto* pPage = new Mortal<Page>;
        pPage->m_check = [&] { return delete pPage, true; };
        EXPECT_EQ(bFinish ? pPage->OnWizardFinish() : pPage->OnWizardNext(), bFinish ? 0 : -1);
    }
}

TEST_F(Wizard, StepsComeOfPagesAndTitlesOfTheResources) {
    EXPECT_EQ(w.RegisterWizPage(nullptr, "") + w.RegisterWizPage(nullptr, IDS_WIZ_CANCEL), -2);
    EXPECT_EQ(w.RegisterWizPage(&last, UINT{IDS_WIZ_CANCEL}), 3);
    const _QVWIZSTEP_INFO& step = QVWizardStepData::GetWizStepData()->GetStepInfo(3);
    EXPECT_EQ(step.dwStepID, DWORD{IDD_WIZ_LAST});
    EXPECT_STREQ(step.szTitle, "Really?");
}

TEST(WizardSteps, TheYoungestDataThatAreLeftAreCurrent) {
    const auto pOldest = std::make_unique<QVWizardStepData>();
    auto pMiddle = std::make_unique<QVWizardStepData>();
    auto pYoungest = std::make_unique<QVWizardStepData>();
    pMiddle.reset();
    EXPECT_EQ(QVWizardStepData::GetWizStepData(), pYoungest.get());
    pYoungest.reset();
    EXPECT_EQ(QVWizardStepData::GetWizStepData(), pOldest.get());
}

// First and last box stand at the margin; a ring leads through those between, a trunk joins the
// two.
TEST(WizardPanel, BoxesAndLinesAreOfFixedPixelsOnBlackInAnyFont) {
    constexpr COLORREF kCurrent = 0x00FF00, kLast = 0x0000FF, kVisited = 0x808080,
                       kNotVisited = 0xC0C0C0, kLine = 0xFFFFFF;
    const struct {
        unsigned nSteps, nCurrent;
        std::vector<std::pair<COLORREF, CRect>> parts;  // of the first 40 columns
    } kCases[] = {{1,
                   9,
                   {{kLast, {8, 8, 24, 24}},
                    {kLine, {16, 24, 17, 32}},
                    {kLine, {24, 16, 32, 17}},
                    {kLine, {32, 16, 33, 32}}}},
                  {2,
                   0,
                   {{kCurrent, {8, 8, 24, 24}},
                    {kLast, {8, 40, 24, 56}},
                    {kLine, {16, 24, 17, 40}},
                    {kLine, {24, 16, 32, 17}},
                    {kLine, {32, 16, 33, 48}},
                    {kLine, {25, 48, 33, 49}}}},
                  {5,
                   2,
                   {{kVisited, {8, 8, 24, 24}},
                    {kVisited, {24, 40, 40, 56}},
                    {kCurrent, {24, 72, 40, 88}},
                    {kNotVisited, {24, 104, 40, 120}},
                    {kLast, {8, 136, 24, 152}},
                    {kLine, {16, 24, 17, 136}},
                    {kLine, {24, 16, 32, 17}},
                    {kLine, {32, 16, 33, 40}},
                    {kLine, {32, 56, 33, 72}},
                    {kLine, {32, 88, 33, 104}},
                    {kLine, {32, 120, 33, 144}},
                    {kLine, {25, 144, 33, 145}}}}};
    RecordingParent parent;
    for (const auto& [nSteps, nCurrent, parts] : kCases) {
        for (const UINT nTemplate : {IDD_WIZ_FIRST, IDD_WIZ_LAST}) {
            QVWizardStepData data;
            for (unsigned i = 0; i < nSteps; ++i) {
                data.AddStep(i, "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
            }
            data.UpdateState(0, WizStepVisited);
            data.UpdateState(1, static_cast<WizStepState>(9));  // goes with the step before
            Page page;
            page.Show(parent, nTemplate, nCurrent);
            const Picture picture = page.Panel();
            const auto expectFull = [&](COLORREF cr, const CRect& rc) {
                EXPECT_EQ(picture.Count(cr, rc), rc.Width() * rc.Height()) << cr << ' ' << rc.top;
                return picture.Count(cr, rc);
            };
            const CRect rc(0, 0, 40, picture.Height());
            int nBlack = rc.Width() * rc.Height();
            for (const auto& [cr, rcPart] : parts) {
                nBlack -= expectFull(cr, rcPart);
            }
            EXPECT_EQ(picture.Count(0, rc), nBlack);
            expectFull(0, CRect(picture.Width() - 8, 0, picture.Width(), rc.bottom));  // titles end
        }
    }
}

TEST(WizardPanel, BoxesAreAsHighAsTitlesOfALargeFontWhereThatIsAskedFor) {
    constexpr COLORREF kCurrent = 0x00FF00;
    RecordingParent parent;
    QVWizardStepData data;
    data.AddStep(0u, "");
    data.AddStep(1u, "");
    for (const bool bBeforeTheWindow : {true, false}) {
        for (const auto& [nTemplate, bLarger] :
             {std::pair{IDD_WIZ_FIRST, false}, {IDD_WIZ_LAST, true}}) {
            Page page;
            if (bBeforeTheWindow) {
                page.m_StepWnd.ScaleToFont(TRUE);
            }
            page.Show(parent, nTemplate, 1);
            const Picture asked = page.Panel();
            page.m_StepWnd.ScaleToFont(TRUE);
            const Picture scaled = page.Panel();
            CRect rcStep;
            page.m_StepWnd.GetAccessibleRect(2, rcStep);
            const int nBox = rcStep.Height();
            EXPECT_EQ(nBox > 16, bLarger) << nBox;
            EXPECT_EQ(scaled.Count(kCurrent), nBox * nBox);
            EXPECT_EQ(
                scaled.Count(kCurrent, CRect(nBox / 2, nBox * 5 / 2, nBox * 3 / 2, nBox * 7 / 2)),
                nBox * nBox);
            EXPECT_EQ(page.m_StepWnd.AccessibleHitTest(CPoint(nBox, nBox * 3)), 2);
            page.m_StepWnd.ScaleToFont(FALSE);
            EXPECT_EQ(page.Panel().Count(kCurrent), 256);
            EXPECT_EQ(asked == scaled, bBeforeTheWindow || !bLarger);
        }
    }
}

TEST(WizardPanel, TheStepOfThePageIsBoldAndMarkedWhilePanelsShowWhatIsCurrent) {
    RecordingParent parent;
    QVWizardStepData data;
    for (const unsigned nID : {5u, 6u, 7u, 6u}) {
        data.AddStep(nID, "Title");
    }
    Page page;
    page.Show(parent, IDD_WIZ_FIRST, 6);
    const Picture outer = page.Panel();
    EXPECT_LT(outer.Count(0, CRect(48, 40, 120, 56)), outer.Count(0, CRect(48, 72, 120, 88)));
    EXPECT_EQ(data.GetStepInfo(1).nState, WizStepVisited);
    EXPECT_EQ(data.GetStepInfo(3).nState, WizStepNotVisited) << "the first of an id alone";
    {
        QVWizardStepData inner;
        inner.AddStep(6u, "Inner");
        EXPECT_EQ(page.Panel().Count(RGB(0, 255, 0)), 256);
        EXPECT_EQ(inner.GetStepInfo(0).nState, WizStepNotVisited) << "the page's index is 1";
    }
    EXPECT_EQ(page.Panel(), outer);
}

TEST_F(Wizard, Monkey) {
    std::unique_ptr<Page> p;
    const auto wander = [&] {
        w.Create(&frame);
        w.SetActivePage(2);
        w.DestroyWindow();
    };
    wander();  // first and last page keep their fonts
    PlayInAnyOrder(p,
                   [&] {
                       p = std::make_unique<Page>();
                       p->Show(frame, IDD_WIZ_FIRST, 3);
                   },
                   {[&](int n) { w.RegisterWizPage(static_cast<DWORD>(n % 4), "Title &"); },
                    [&](int n) {
                        const QVWizardStepData inner;
                        p->SendDlgItemMessage(Page::kStepPanelID, static_cast<UINT>(n + 5) * 8);
                    },
                    [&](int n) {
                        QVWizardStepData::GetWizStepData()->UpdateState(
                            n, static_cast<WizStepState>(n));
                        p->RedrawWindow();
                    },
                    [&](int) { p->OnInitDialog(); },
                    [&](int) { ::DestroyWindow(::GetDlgItem(*p, Page::kStepPanelID)); },
                    [&](int n) { n == 0 ? wander() : p.reset(); }});
}

}  // namespace
