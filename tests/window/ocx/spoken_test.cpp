// What the automation controls tell a screen reader.
#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/flex_grid_members.h"
#include "ocx/qvocx.h"
#include "ocx/tab_strip_members.h"
#include "ocx/text_field_members.h"
#include "support/accessible_questions.h"
#include "support/ole_site.h"

#include <gtest/gtest.h>

namespace {

class SpokenControls : public Accessible {
protected:
    SpokenControls() { QVRegisterControls(); }
    ~SpokenControls() override {
        pSite.reset();
        QVRevokeControls();
        PumpPending();
    }
    void Make(REFCLSID clsid) {
        pSite = std::make_unique<OleSite>(clsid);
        pSite->Activate({10, 10, 310, 210}, OLEIVERB_UIACTIVATE);
    }
    void WatchSite() {
        PumpPending();
        Watch(pSite->Window());
    }
    /// Screen coordinates of a point of the control.
    std::string At(POINT pt) {
        ::ClientToScreen(pSite->Window(), &pt);
        return std::to_string(pt.x) + ' ' + std::to_string(pt.y);
    }
    static void SetCell(IDispatch& grid, LONG nRow, LONG nCol, const wchar_t* psz) {
        VARIANT arguments[3] = {COleVariant(psz).Detach(), COleVariant(nCol).Detach(),
                                COleVariant(nRow).Detach()};
        DISPID idPut = DISPID_PROPERTYPUT;
        DISPPARAMS params{arguments, &idPut, 3, 1};
        EXPECT_EQ(grid.Invoke(ocx::FlexGridId::TextMatrix, IID_NULL, 0, DISPATCH_PROPERTYPUT,
                              &params, nullptr, nullptr, nullptr),
                  S_OK);
        ::VariantClear(&arguments[0]);
    }

    std::unique_ptr<OleSite> pSite;
};

TEST_F(SpokenControls, ATabStripIsAListOfTabs) {
    using Id = ocx::TabStripId;
    Make(ocx::kTabStripClass);
    pSite->Put(Id::TabCount, 3);
    for (int n = 0; n < 3; ++n) {
        pSite->Put(Id::Tab, n);
        pSite->Put(Id::TabCaption, (L"Tab && &" + std::to_wstring(n)).c_str());
    }
    pSite->Put(Id::Tab, 1);
    pSite->Put(Id::TabState, 1);
    WatchSite();
    Expect({{"say 0", "page tab list [focused focusable]"},
            {"all 0 9",
             "1: page tab \"Tab & 0\" [selected focused focusable selectable] action \"Switch\"\n"
             "2: page tab \"Tab & 1\" [unavailable]\n"
             "3: page tab \"Tab & 2\" [focusable selectable] action \"Switch\""},
            {"say 4", kInvalid},
            {"selection", "1"},
            {"go 1 5", "2"},
            {"go 3 5", "none"},
            {"hit " + At({20, 10}), "1"},
            {"hit " + At({150, 150}), "0"},
            {"do 2", kNoDeed},
            {"do 3", kDone},
            {"heard", "focus 3, selection 3"},
            {"focus", "3"}});
    EXPECT_EQ(pSite->Number(Id::ActiveTab), 2);
    pSite->Put(Id::Tab, 0L);
    pSite->Put(Id::TabCaption, L"other");
    pSite->Put(Id::TabCount, 2);
    Expect({{"heard", "name 1, focus 1, selection 1, reorder 0"}, {"count", "2"}});
    const HWND hPage = ::CreateWindowA("static", "page", WS_CHILD | WS_VISIBLE, 100, 100, 50, 50,
                                       pSite->Window(), nullptr, nullptr, nullptr);
    Expect({{"count", "3"}, {"hit " + At({120, 120}), "object"}});
    EXPECT_NE(Ask("all 2 1").find("object: "), std::string::npos) << "a page is a window";
    ::DestroyWindow(hPage);
    // A container that closes the control in what it is told.
    pSite->m_onEvent = [this](DISPID id, DISPPARAMS&) { id == 7 ? pSite->Close() : void(); };
    pSite->Put(Id::Tab, 1);
    pSite->Put(Id::TabState, 0L);
    Ask("do 2");
    EXPECT_EQ(pSite->Window(), nullptr);
    Expect({{"say 0", kGone}, {"do 1", kGone}});
}

TEST_F(SpokenControls, ATextFieldIsNamedByItsLabelAndTypedInto) {
    using Id = ocx::TextFieldId;
    Make(ocx::kTextFieldClass);
    const HWND hLabel = ::CreateWindowA("static", "&Fruit", WS_CHILD, 0, 0, 50, 20, pSite->Frame(),
                                        nullptr, nullptr, nullptr);
    ::SetWindowPos(hLabel, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    pSite->Put(Id::CharValidationText, L"ab");
    pSite->Put(Id::Text, L"abba");
    WatchSite();
    constexpr char kField[] = "text \"Fruit\" value \"abba\" [focused focusable]";
    Expect({{"say 0", kField}, {"count", "0"}, {"set 0 x", kNoDeed}, {"say 0", kField}});
    Watch(::GetWindow(pSite->Window(), GW_CHILD));
    Expect({{"say 0", kField}, {"set 0 ab", kDone}});
    EXPECT_EQ(pSite->Text(Id::Text), L"ab");
    pSite->Put(Id::PasswordChar, L"*");
    Expect({{"say 0", "text \"Fruit\" [focused focusable protected]"}});
    pSite->Put(Id::PasswordChar, L"");
    pSite->Put(Id::UserEntry, 1);
    Expect({{"set 0 b", kNoDeed}});
    pSite->LetGo();
    Expect({{"say 0", kGone}});
}

TEST_F(SpokenControls, AFlexibleGridIsATableOfCellsUnderHeadings) {
    using Id = ocx::FlexGridId;
    Make(ocx::kFlexGridClass);
    pSite->Put(Id::Rows, 3);
    pSite->Put(Id::Cols, 3);
    SetCell(*pSite->Dispatch(), 0, 2, L"Size");
    SetCell(*pSite->Dispatch(), 1, 0, L"one");
    SetCell(*pSite->Dispatch(), 1, 2, L"3 GB");
    WatchSite();
    constexpr char kCell[] =
        "cell \"3 GB\" description \"Size, one\" [read only focusable selectable]";
    Expect({{"say 0", "table [focused focusable]"},
            {"count", "9"},
            {"say 3", "column header \"Size\" [read only]"},
            {"say 4", "row header \"one\" [read only]"},
            {"say 6", kCell},
            {"go 6 2", "9"},
            {"go 6 3", "5"},
            {"go 6 4", "none"},
            {"go 9 2", "none"},
            {"focus", "5"},
            {"select 4 2", "0x00000001"}});
    Ask("heard");
    Expect({{"select 9 2", kDone}, {"heard", "focus 9, selection 9"}, {"selection", "9"}});
    pSite->Put(Id::RowSel, 1);
    pSite->Put(Id::ColSel, 1);
    Expect({{"selection", "5 6 8 9"}});
    Ask("heard");
    SetCell(*pSite->Dispatch(), 1, 2, L"new");
    Expect({{"heard", "name 6"}});
    pSite->Put(Id::Rows, 1'000'000);
    pSite->Put(Id::Cols, 2'000);
    Expect({{"count", std::to_string(0x3FFFFFFF)},
            {"say 1000001", "row header [read only invisible offscreen]"}});
}

// Anything in any order, while the container closes the control in what it is told.
TEST_F(SpokenControls, Monkey) {
    const long nObjects = QVOcxObjectCount();
    std::mt19937 random = MonkeyRandom(7);
    for (int i = 0; i < 60; ++i) {
        const CLSID aKinds[] = {ocx::kTabStripClass, ocx::kTextFieldClass, ocx::kFlexGridClass};
        Make(aKinds[i % 3]);
        if (i % 3 == 0) {
            pSite->Put(ocx::TabStripId::TabCount, 4);
        }
        IAccessible* pObject = nullptr;
        ASSERT_EQ(
            ::AccessibleObjectFromWindow(pSite->Window(), static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), reinterpret_cast<void**>(&pObject)),
            S_OK);
        int nTold = 0;
        pSite->m_onEvent = [&](DISPID, DISPPARAMS&) {
            if (++nTold == 9) {
                i % 2 == 0 ? pSite->Close() : pSite->LetGo();
            }
        };
        for (int n = 0; n < 40; ++n) {
            AskAnything(*pObject, static_cast<long>(random() % 8) - 1, n);
        }
        AskAnything(*pObject, 0x40000000, i);
        pSite.reset();
        AskAnything(*pObject, 1, i);
        long nCount = 0;
        EXPECT_EQ(pObject->get_accChildCount(&nCount), CO_E_OBJNOTCONNECTED);
        pObject->Release();
    }
    PumpPending();
    EXPECT_EQ(QVOcxObjectCount(), nObjects) << "references are left";
}

}  // namespace
