// Boxes without memory, in any order, and with a parent that takes rows or all away.
#include "support/box_window.h"
#include "support/held_keys.h"
#include "support/monkey.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <afxext.h>

#include <gtest/gtest.h>
#include <set>

namespace {

const CRect kPage(0, 0, 300, 900);
constexpr char kRow[] = "a row of text that is long";
constexpr char kLong[] = "another row of a text that is long\t\033ax";

// A box of three rows, and what operations need beside it.
template <class Box>
struct Subject : BoxWindow<Box> {
    using BoxWindow<Box>::box;

    explicit Subject(DWORD dwStyle = kPlainBox<Box> | WS_BORDER)
        : BoxWindow<Box>(dwStyle, true, true) {
        if constexpr (kIsList<Box>) {
            box->AddHeader("a title of some length");
            box->CalcTabsFromHeader(0);
        }
        Fill();
    }
    void Fill() {
        box->ResetContent();
        for (int i = 0; i < 3; ++i) {
            box->SetItemData(InsertRow(*box, 1, i, kRow), static_cast<DWORD_PTR>(i));
        }
        box->SetCurSel(1);
        box->UpdateWindow();
        str = "as it was";
    }
    std::string State() {
        std::string strState = std::string(str) + this->Selection();
        for (int i = 0; i < box->GetCount(); ++i) {
            strState += '\n' + this->Stored(i) + ' ' + std::to_string(box->GetItemData(i));
        }
        return strState;
    }

    CString str;
    TextRecorder dc;
    CPrintInfo info;
};

// n and psz may be anything.
template <class Box>
using Act = std::function<void(Subject<Box>& s, int n, const char* psz)>;
// Asks for memory; false: it says that it could not.
template <class Box>
using Operation = bool (*)(Subject<Box>& s, int n, const char* psz);

template <class Box>
std::vector<Operation<Box>> Operations() {
    std::vector<Operation<Box>> all{
        [](auto& s, int n, auto psz) { return InsertRow(*s.box, n, n, psz) >= 0; },
        [](auto& s, int, auto) { return s.box->RedrawWindow() != 0; }};
    if constexpr (kHasImages<Box>) {
        all.insert(all.end(),
                   {[](auto& s, int n, auto psz) { return s.box->AddBitmapString(n, psz) >= 0; },
                    [](auto& s, int, auto) { return s.box->FindBitmapString(1, kRow) == 0; },
                    [](auto& s, int n, auto) { return s.box->GetImage(n) == 1; },
                    [](auto& s, int n, auto) { return s.box->GetItemString(n, s.str) != 0; },
                    [](auto& s, int n, auto psz) { return s.box->SetItemString(n, psz) != 0; },
                    [](auto& s, int n, auto psz) { return s.box->CompareToItem(n, psz, n) != 0; }});
    } else {
        all.push_back([](auto& s, int n, auto) { return s.box->GetColor(n) == 1; });
    }
    if constexpr (kIsList<Box>) {
        all.insert(all.end(),
                   {[](auto& s, int n, auto) { return s.box->SetImage(n, n) == 1; },
                    [](auto& s, int, auto) { return s.box->MakeHeaderString(s.str) == 1; },
                    [](auto& s, int, auto) { return s.box->ExportData("NUL", ',') == 1; },
                    [](auto& s, int, auto) {
                        return s.box->PrintItems(&s.dc, &s.info, CRect(0, 0, 300, 900)) == 3;
                    },
                    [](auto& s, int, auto) {
                        return s.box->SaveSelections(), s.box->RestoreSelections(), true;
                    }});
    }
    return all;
}

// What else the list handles itself.
std::vector<Act<OpenListBox>> ActsOfTheList() {
    static constexpr int kTabs[20] = {50, 10090, 20300};
    return {[](auto& s, int n, auto) { s.box->SendMessage(WM_RBUTTONDOWN, 0, n * 0x50014); },
            [](auto& s, int n, auto) { s.box->MoveWindow(0, 0, n * 9, n * 6); },
            [](auto& s, int n, auto psz) { n ? s.box->AddHeader(psz) : s.box->ClearHeaders(); },
            [](auto& s, int n, auto) { s.box->UseTabs(kTabs, n % 22); },
            [](auto& s, int n, auto) { s.box->SetTabValue(n, n * 99), s.box->GetTabFormat(n); },
            [](auto& s, int n, auto) { s.box->CalcTabsFromHeader(n); },
            [](auto& s, int, auto) { s.box->CalcListTabs(); },
            [](auto& s, int, auto) { s.box->RestoreSelections(); },
            [](auto& s, int n, auto) { s.box->SetRedraw(n % 3); },
            [](auto& s, int n, auto) { s.box->SortByImageIndex(n % 2); }};
}

// Letters reach a combo box that has no edit; one that has an edit passes them on, and in some
// states the platform's own does not live through them.
template <class Box>
void TypeLetter(CWnd& box, char ch, bool bControl) {
    if (kIsList<Box> || (box.GetStyle() & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST) {
        bControl ? void(SendKey(box.m_hWnd, static_cast<UINT>(ch), true))
                 : void(box.SendMessage(WM_CHAR, static_cast<WPARAM>(ch)));
    }
}

// What the platform's boxes do, which end the program if they go meanwhile.
template <class Box>
std::vector<Act<Box>> ActsOfThePlatform() {
    return {[](auto& s, int n, auto) { s.box->DeleteString(static_cast<UINT>(n)); },
            [](auto& s, int, auto) { s.box->AddString(""); },
            [](auto& s, int n, auto) { n == 0 ? s.box->ResetContent() : void(); },
            [](auto& s, int n, auto) { s.box->SetCurSel(n), s.box->SetTopIndex(n); },
            [](auto& s, int n, auto) { s.box->MoveWindow(0, 0, n * 9, n * 6); },
            [](auto& s, int n, auto) { s.box->SendMessage(WM_KEYDOWN, n % 2 ? VK_DOWN : VK_F4); },
            [](auto& s, int n, auto) { s.box->EnableExpectedKeys(n % 2); },
            [](auto& s, int n, auto) { TypeLetter<Box>(*s.box, n % 2 ? 'a' : 'r', false); },
            [](auto& s, int n, auto) { TypeLetter<Box>(*s.box, n % 2 ? 'A' : 'C', true); }};
}

template <class Box>
std::vector<Act<Box>> Acts() {
    const auto operations = Operations<Box>();
    std::vector<Act<Box>> all(operations.begin(), operations.end());
    if constexpr (kIsList<Box>) {
        const auto more = ActsOfTheList();
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

template <class Box>
void UseAsTheUser(Subject<Box>& s, int, const char*) {
    if constexpr (kIsList<Box>) {
        ClickAt(s.box->m_header.m_hWnd, CPoint(9, 9));
    } else {
        BringToFront(s.parent.m_hWnd);
        s.box->SetFocus();
        for (const WORD nKey : {VK_F4, VK_DOWN, VK_RETURN}) {
            TypeKey(nKey);
        }
    }
}

template <class Box>
struct AnyBox : testing::Test {
    AnyBox() { TheTestApp().Forget(); }
    ~AnyBox() override {
        EXPECT_TRUE(TheTestApp().m_exceptions.empty());
        EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    }
    const LONG nHandles = AfxGetOwnedHandleCount();
};
template <class Box>
struct AnyBoxMonkey : AnyBox<Box> {};
using Boxes = testing::Types<OpenListBox, OpenBitmapCombo, OpenColorCombo>;
TYPED_TEST_SUITE(AnyBox, Boxes);
TYPED_TEST_SUITE(AnyBoxMonkey, Boxes);

// In whatever happens on the way of an act, one after the other: the parent is told, the box has
// handled a message, or is in a virtual step (0). The platform's own boxes end the program if they
// go inside WM_MEASUREITEM or WM_DELETEITEM.
TYPED_TEST(AnyBox, MayBeTakenAwayByItsParent) {
    using Deed = void (*)(Subject<TypeParam>&);
    constexpr Deed kDeeds[] = {
        [](auto& s) { s.box->DeleteString(1); }, [](auto& s) { s.box->ResetContent(); },
        [](auto& s) { s.box->DestroyWindow(); }, [](auto& s) { s.box.reset(); }};
    constexpr UINT kEvents[] = {0,
                                WM_DRAWITEM,
                                WM_COMMAND,
                                WM_NOTIFY,
                                LB_INSERTSTRING,
                                LB_DELETESTRING,
                                CB_INSERTSTRING,
                                CB_DELETESTRING};
    std::set<UINT> seen;
    auto acts = Acts<TypeParam>();
    acts.push_back(UseAsTheUser<TypeParam>);
    for (size_t i = 0; i < acts.size() * std::size(kDeeds); ++i) {
        int nEvents = 1;
        for (int nSkip = 0; nSkip < 5 && nEvents >= nSkip; ++nSkip) {
            SCOPED_TRACE(testing::Message() << i << ' ' << nSkip);
            Subject<TypeParam> s;
            nEvents = 0;
            const auto happen = [&](UINT nMessage) {
                if (std::ranges::count(kEvents, nMessage) != 0 && nEvents++ == nSkip) {
                    seen.insert(nMessage);
                    kDeeds[i % std::size(kDeeds)](s);
                }
                return false;
            };
            s.parent.m_onMessage = [&](UINT nMessage, WPARAM) { return happen(nMessage); };
            s.box->onHandled = happen;
            acts[i / std::size(kDeeds)](s, 1, "x");
            if (s.box != nullptr) {
                s.box->onHandled = nullptr;
            }
        }
    }
    EXPECT_EQ(seen.size(), kIsList<TypeParam> ? 6u : kHasImages<TypeParam> ? 5u : 4u);
}

TYPED_TEST(AnyBox, WithoutMemoryKeepsWhatWasThere) {
    Subject<TypeParam> s;
    s.parent.BeQuiet();
    const std::string strBefore = s.State();
    const auto operations = Operations<TypeParam>();
    for (const auto& operation : operations) {
        SCOPED_TRACE(&operation - operations.data());
        std::string strDone;
        bool bDone = false;
        const int nRefused = RefuseEach(
            "", [&] { bDone = false, bDone = operation(s, 0, kLong); },
            [&] {
                strDone = bDone && strDone.empty() ? s.State() : strDone;
                EXPECT_EQ(s.State(), bDone ? strDone : strBefore);
                s.Fill();
            });
        EXPECT_TRUE(bDone && nRefused > 0);
    }
}

TYPED_TEST(AnyBoxMonkey, SurvivesAnyOrder) {
    constexpr const char* kTexts[] = {"", "a", "\033bred\tb\t\033zy", "\t\t9", "\033", nullptr};
    std::mt19937 random = MonkeyRandom(9);
    auto acts = Acts<TypeParam>();
    const auto more = ActsOfThePlatform<TypeParam>();
    acts.insert(acts.end(), more.begin(), more.end());
    for (const DWORD dwStyle :
         kIsList<TypeParam>
             ? std::vector<DWORD>{LBS_EXTENDEDSEL | WS_BORDER, LBS_SORT}
             : std::vector<DWORD>{CBS_DROPDOWN, CBS_DROPDOWNLIST, CBS_SIMPLE | CBS_SORT}) {
        Subject<TypeParam> s(dwStyle);
        for (int i = 0; i < MonkeySteps() / 2; ++i) {
            const int n = static_cast<int>(random() % 40) - 4;
            acts[random() % acts.size()](s, n, kTexts[random() % std::size(kTexts)]);
        }
        EXPECT_TRUE(::IsWindow(s.box->m_hWnd));
    }
}

}  // namespace
