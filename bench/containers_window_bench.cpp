// A tab window beside the platform's property sheet, modeless, with pages from one template. A
// switch is painted to its end, and each page was shown before.

#include "QVControls.h"
#include "window_bench.h"

#include <array>
#include <cstring>
#include <prsht.h>

namespace {

constexpr int kPages = 10;
constexpr int kControls = 50;
constexpr int kColumns = 5;
constexpr int kSwitches = 20;
constexpr int kRuns = 30;  // short ones: some fall between what else the machine does

// A dialog of kControls controls in memory: captions, edits and buttons in turn.
class PageTemplate {
public:
    PageTemplate() {
        const short cx = kColumns * kWidth;
        const short cy = kControls / kColumns * kHeight;
        Add(DLGTEMPLATE{DS_CONTROL | DS_SETFONT | WS_CHILD, 0, kControls, 0, 0, cx, cy});
        for (const WORD n : {0, 0, 0, 8}) {  // no menu, the usual class, no title; points
            Add(n);
        }
        Add(L"Tahoma");
        for (int n = 0; n < kControls; ++n) {
            AddControl(n);
        }
    }
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    static constexpr short kWidth = 50;  // of a control with its gap, in dialog units
    static constexpr short kHeight = 15;

    template <class Value>
    void Add(const Value& value) {
        const size_t nOld = m_words.size();
        m_words.resize(nOld + sizeof(value) / sizeof(WORD));
        std::memcpy(&m_words[nOld], &value, sizeof(value));
    }
    void AddControl(int n) {
        m_words.resize((m_words.size() + 1) / 2 * 2);
        constexpr WORD kClasses[] = {0x82, 0x81, 0x80};  // static, edit, button
        const int nKind = n % 3;
        const DWORD dwStyle = WS_CHILD | WS_VISIBLE | (nKind > 0 ? WS_TABSTOP : 0) |
                              (nKind == 1 ? static_cast<DWORD>(WS_BORDER) : 0);
        Add(DLGITEMTEMPLATE{dwStyle, 0, static_cast<short>(n % kColumns * kWidth + 2),
                            static_cast<short>(n / kColumns * kHeight + 2), kWidth - 4, kHeight - 4,
                            static_cast<WORD>(n + 1)});
        Add(std::array<WORD, 2>{0xFFFF, kClasses[nKind]});
        Add(L"Control");
        Add(WORD{0});
    }

    std::vector<WORD> m_words;
};

const PageTemplate& TheTemplate() {
    static const PageTemplate s_template;
    return s_template;
}

class Page : public QVTabWndPage {
    DECLARE_DYNCREATE(Page)

public:
    int Create(CWnd* pParent) override { return CreateIndirect(TheTemplate().Get(), pParent); }
};
IMPLEMENT_DYNCREATE(Page, QVTabWndPage)

class Tabs : public QVTabWnd {
    void AddTabPages() override {
        for (int n = 0; n < kPages; ++n) {
            AddPage("Page", RUNTIME_CLASS(Page));
        }
    }
};

INT_PTR CALLBACK SheetPage(HWND, UINT nMessage, WPARAM, LPARAM) {
    return nMessage == WM_INITDIALOG;
}

HWND MakeSheet() {
    PROPSHEETPAGE page{};
    page.dwSize = sizeof(page);
    page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
    page.pResource = TheTemplate().Get();
    page.pszTitle = "Page";
    page.pfnDlgProc = SheetPage;
    const std::vector<PROPSHEETPAGE> pages(kPages, page);
    PROPSHEETHEADER header{};
    header.dwSize = sizeof(header);
    header.dwFlags = PSH_MODELESS | PSH_PROPSHEETPAGE;
    header.nPages = kPages;
    header.ppsp = pages.data();
    return reinterpret_cast<HWND>(::PropertySheet(&header));
}

template <class Switch>
double TimeSwitches(HWND hWnd, Switch switchTo) {
    return bench::Time([&] {
               for (int n = 1; n <= kSwitches; ++n) {
                   switchTo(n % kPages);
                   ::RedrawWindow(hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
               }
               ::GdiFlush();
           }) /
           kSwitches;
}

}  // namespace

void MeasureContainers() {
    constexpr double kMilliseconds = 1e3;
    HWND hSheet = MakeSheet();
    ::SetWindowPos(hSheet, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
    CRect rcSheet;
    ::GetWindowRect(hSheet, &rcSheet);
    CRect rcPage;
    ::GetClientRect(reinterpret_cast<HWND>(::SendMessage(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0)),
                    &rcPage);

    // Beside the sheet, with pages of its pages' size.
    bench::Frame frame(CSize(rcPage.Width() + 60, rcPage.Height() + 100));
    frame.SetWindowPos(nullptr, rcSheet.right + 10, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Tabs tabs;
    tabs.Create(1, CRect(0, 0, 100, 100), &frame);
    constexpr int kInset = 10;
    CRect rcTabs(rcPage);
    rcTabs.InflateRect(kInset, kInset);
    tabs.GetTabCtrl().AdjustRect(TRUE, &rcTabs);
    tabs.SetWindowPos(nullptr, 0, 0, rcTabs.Width(), rcTabs.Height(), SWP_NOMOVE | SWP_NOZORDER);

    const auto ours = [&] {
        return TimeSwitches(frame.m_hWnd, [&](int nPage) { tabs.SetActivePage(nPage); });
    };
    const auto theirs = [&] {
        return TimeSwitches(hSheet, [&](int nPage) {
            ::SendMessage(hSheet, PSM_SETCURSEL, static_cast<WPARAM>(nPage), 0);
        });
    };
    ours();
    theirs();
    bench::Compare("containers/tab-switch", kMilliseconds, "ms",
                   bench::FastestPair(ours, theirs, kRuns));
    ::DestroyWindow(hSheet);
}
