// Sheets and pages that write down what they are asked, and do in their loop what a test wants.
#pragma once

#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "window/containers/sheet_test_ids.h"

#include <afxdlgs.h>
#include <afxpriv.h>

#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>

/// What all pages of a sheet were asked, in words: page, colon, question.
using Diary = std::string;

/// Base: a page class. Its questions are answered as the test says.
template <class Base>
class DiaryPage : public Base {
public:
    DiaryPage(UINT nTemplate, char chName, Diary& diary)
        : Base(nTemplate), m_chName(chName), m_diary(diary) {}

    std::set<std::string> m_refused;  ///< questions answered with no
    LRESULT m_lNext = 0;
    LRESULT m_lBack = 0;
    std::function<void(const std::string&)> m_asked = [](const std::string&) {};
    CString m_strText;
    int m_nKeys = 0;  ///< key messages that came by before they were dispatched

    BOOL OnSetActive() override { return Base::OnSetActive() && Ask("set"); }
    BOOL OnKillActive() override { return Base::OnKillActive() && Ask("kill"); }
    BOOL OnApply() override { return Ask("apply") && Base::OnApply(); }
    void OnOK() override { Ask("ok"); }
    void OnReset() override {
        Ask("reset");
        Base::OnReset();
    }
    void OnCancel() override { Ask("cancel"); }
    BOOL OnQueryCancel() override { return Ask("query") && Base::OnQueryCancel(); }
    LRESULT OnWizardNext() override {
        Ask("next");
        return m_lNext != 0 ? m_lNext : Base::OnWizardNext();
    }
    LRESULT OnWizardBack() override {
        Ask("back");
        return m_lBack != 0 ? m_lBack : Base::OnWizardBack();
    }
    BOOL OnWizardFinish() override { return Ask("finish") && Base::OnWizardFinish(); }
    LRESULT OnQuerySiblings(WPARAM wParam, LPARAM lParam) override {
        return Ask("sibling") ? 0 : static_cast<LRESULT>(wParam) + lParam;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        m_nKeys += pMsg->message == WM_KEYDOWN;
        return Base::PreTranslateMessage(pMsg);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_PAGE_EDIT, m_strText); }

private:
    bool Ask(const std::string& what) {
        m_diary += std::string(m_diary.empty() ? "" : " ") + m_chName + ":" + what;
        const bool bYes = m_refused.count(what) == 0;
        m_asked(what);  // may delete this
        return bYes;
    }

    const char m_chName;
    Diary& m_diary;
};

/// Base: a sheet class. m_action runs once the sheet is there, and a sheet that it did not end is
/// ended.
template <class Base>
class ActingSheet : public Base {
public:
    using Base::Base;

    std::function<void()> m_action = [] {};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kAct) {
            return Base::WindowProc(message, wParam, lParam);
        }
        m_action();
        if (!this->IsModeless() && this->m_hWnd != nullptr && this->ContinueModal()) {
            this->EndDialog(kStillThere);
        }
        return 0;
    }
    BOOL OnInitDialog() override {
        const BOOL bResult = Base::OnInitDialog();
        this->PostMessage(kAct);
        return bResult;
    }

public:
    static constexpr int kStillThere = 4711;

private:
    static constexpr UINT kAct = WM_APP + 21;
};

/// A sheet with three pages, b (of the big font), p and n (of none).
template <class SheetClass, class PageClass>
struct ThreePages {
    using Sheet = ActingSheet<SheetClass>;
    using Page = DiaryPage<PageClass>;

    ThreePages() {
        for (Page* pPage : {&b, &p, &n}) {
            sheet.AddPage(pPage);
        }
    }
    /// Runs the sheet, with its diary from when it came up.
    INT_PTR Show(std::function<void()> action) {
        sheet.m_action = [this, action = std::move(action)] {
            BringToFront(sheet.m_hWnd);
            diary.clear();
            action();
        };
        return sheet.DoModal();
    }
    void Press(int nID) {
        sheet.SendMessage(WM_COMMAND, static_cast<WPARAM>(nID),
                          reinterpret_cast<LPARAM>(sheet.GetDlgItem(nID)->GetSafeHwnd()));
    }
    bool Enabled(int nID) { return sheet.GetDlgItem(nID)->IsWindowEnabled(); }
    std::string Take() { return std::exchange(diary, Diary()); }

    Diary diary;
    Page b{IDD_PAGE_BIG, 'b', diary};
    Page p{IDD_PAGE_PLAIN, 'p', diary};
    Page n{IDD_PAGE_BARE, 'n', diary};
    RecordingParent owner;
    Sheet sheet{"Sheet", &owner, 0};
};
