// Sheets and pages that write down what they are asked, and do in their loop what a test wants.
#pragma once

#include "support/acting_dialog.h"
#include "support/popup.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/containers/sheet_test_ids.h"

#include <afxdlgs.h>
#include <afxpriv.h>

#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>

/// Base: a page class. It writes "name:question" for each question.
template <class Base>
class DiaryPage : public Base {
public:
    DiaryPage(UINT nTemplate, char chName, std::string& diary)
        : Base(nTemplate), m_chName(chName), m_diary(diary) {}

    std::set<std::string> m_refused;  ///< questions answered with no
    LRESULT m_lNext = 0;
    LRESULT m_lBack = 0;
    std::function<void(const std::string&)> m_asked = [](const std::string&) {};
    CString m_strText;
    int m_nKeys = 0;  ///< keys that came by before they were dispatched

    BOOL OnSetActive() override { return Base::OnSetActive() && Ask("set"); }
    BOOL OnKillActive() override { return Base::OnKillActive() && Ask("kill"); }
    BOOL OnApply() override { return Ask("apply") && Base::OnApply(); }
    void OnOK() override { Ask("ok"); }
    void OnCancel() override { Ask("cancel"); }
    BOOL OnQueryCancel() override { return Ask("query") && Base::OnQueryCancel(); }
    LRESULT OnWizardNext() override { return Ask("next") ? m_lNext : -1; }
    LRESULT OnWizardBack() override { return Ask("back") ? m_lBack : -1; }
    BOOL OnWizardFinish() override { return Ask("finish") && Base::OnWizardFinish(); }
    LRESULT OnQuerySiblings(WPARAM wParam, LPARAM lParam) override {
        return Ask("sibling") ? 0 : static_cast<LRESULT>(wParam) + lParam;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        return (m_nKeys += pMsg->message == WM_KEYDOWN, Base::PreTranslateMessage(pMsg));
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_PAGE_EDIT, m_strText); }

private:
    bool Ask(const std::string& question) {
        m_diary += std::string(m_diary.empty() ? "" : " ") + m_chName + ":" + question;
        const bool bYes = m_refused.count(question) == 0;
        m_asked(question);
        return bYes;
    }

    const char m_chName;
    std::string& m_diary;
};

/// Base: a sheet class.
template <class Base>
class ActingSheet : public ActingDialog<Base> {
public:
    using ActingDialog<Base>::ActingDialog;
    using Base::BuildPropPageArray;

protected:
    bool IsModal() override { return !this->IsModeless(); }
};

/// A sheet with three pages: b of a big font, p of a plain one, n of none.
template <class SheetClass, class PageClass>
struct ThreePages {
    using Page = DiaryPage<PageClass>;

    ThreePages() {
        MakePopup(owner);
        for (Page* pPage : {&b, &p, &n}) {
            sheet.AddPage(pPage);
        }
    }
    /// Runs the sheet; its diary begins with the action.
    INT_PTR Show(std::function<void()> action) {
        sheet.m_action = [this, action = std::move(action)] {
            BringToFront(sheet.m_hWnd);
            diary.clear();
            action();
        };
        return sheet.DoModal();
    }
    void Press(int nID) { sheet.SendDlgItemMessage(nID, BM_CLICK); }
    std::string Take() { return std::exchange(diary, std::string()); }

    std::string diary;
    Page b{IDD_PAGE_BIG, 'b', diary};
    Page p{IDD_PAGE_PLAIN, 'p', diary};
    Page n{IDD_PAGE_BARE, 'n', diary};
    CWnd owner;
    ActingSheet<SheetClass> sheet{"Sheet", &owner, 0};
};
