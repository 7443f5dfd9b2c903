// Frames and what lies in them: names of documents and files, texts of bars and tips, paper.
#include "drawn_text.h"
#include "page_text.h"
#include "window/afx/view_host.h"

#include <afxadv.h>
#include <afxcmn.h>
#include <afxcontrolbars.h>
#include <afxext.h>

#include <gtest/gtest.h>

namespace {

class PlainText : public CEditView {
    DECLARE_DYNCREATE(PlainText)
};
IMPLEMENT_DYNCREATE(PlainText, CEditView)

std::wstring MenuText(HMENU hMenu, UINT nID) {
    wchar_t szText[300] = L"";
    ::GetMenuStringW(hMenu, nID, szText, 300, MF_BYCOMMAND);
    return szText;
}

/// The name of a child without its number in the menu.
std::wstring WindowName(const CMDIFrameWnd& frame) {
    const HMENU hList = ::GetSubMenu(::GetMenu(frame.m_hWnd), 0);
    const std::wstring strText = MenuText(hList, AFX_IDM_FIRST_MDICHILD);
    const size_t nSpace = strText.find(L' ');
    return nSpace != std::wstring::npos ? strText.substr(nSpace + 1) : strText;
}

TEST(FramesText, TitlesAndWindowListsNameTheDocument) {
    ViewHost<PlainText> view;
    view.Frame()->ModifyStyle(0, FWS_ADDTOTITLE | FWS_PREFIXTITLE);
    view.Frame()->SetTitle("Program");
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        view.m_doc.SetTitle(word.str.c_str());
        view.Frame()->OnUpdateFrameTitle(TRUE);
        EXPECT_EQ(WideTextOf(*view.Frame()), word.strWide + L" - Program");

        const HMENU hMenu = ::CreateMenu();
        const HMENU hWindows = ::CreatePopupMenu();
        ::AppendMenu(hWindows, MF_STRING, ID_WINDOW_CASCADE, "&Cascade");
        ::AppendMenu(hMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(hWindows), "&Window");
        auto* pMain = new CMDIFrameWnd;
        ASSERT_TRUE(pMain->CreateEx(0, nullptr, "Program", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300,
                                    nullptr, hMenu));
        auto* pChild = new CMDIChildWnd;
        ASSERT_TRUE(pChild->Create(nullptr, word.str.c_str(), WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                                   CFrameWnd::rectDefault, pMain));
        EXPECT_EQ(WideTextOf(*pChild), word.strWide);
        EXPECT_EQ(WindowName(*pMain), word.strWide);
        pMain->DestroyWindow();
    }
}

TEST(FramesText, MenusOfRecentFilesNameThem) {
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        CRecentFileList files(0, "", "%d", 3, 300);
        files.Add(("c:\\" + word.str + "\\" + word.str + " & more.txt").c_str());
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, "Recent File");
        CCmdUI state;
        state.m_pMenu = &menu;
        state.m_nID = ID_FILE_MRU_FILE1;
        state.m_nIndexMax = 1;
        files.UpdateMenu(&state);
        EXPECT_EQ(MenuText(menu, ID_FILE_MRU_FILE1),
                  L"&1 c:\\" + word.strWide + L"\\" + word.strWide + L" && more.txt");
    }
}

/// Tells a text about each of its points.
class TippedWnd : public CWnd {
public:
    std::string m_strTip;
    bool m_bAsked = false;  ///< the text is given when it is asked for

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override {
        pTI->hwnd = m_hWnd;
        pTI->uId = 7;
        pTI->rect = CRect(0, 0, 500, 500);
        pTI->uFlags |= static_cast<UINT>(TTF_ALWAYSTIP);
        pTI->lpszText = m_bAsked ? LPSTR_TEXTCALLBACK : const_cast<LPSTR>(m_strTip.c_str());
        return point.x;
    }

protected:
    BOOL OnNeedText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
        auto* pText = reinterpret_cast<TOOLTIPTEXTA*>(pNMHDR);
        pText->lpszText = m_strTip.data();
        return *pResult = 0, TRUE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(TippedWnd, CWnd)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &TippedWnd::OnNeedText)
END_MESSAGE_MAP()

TEST(FramesText, TipsOfWindowsAndTextsOfBars) {
    ViewHost<PlainText> view;
    TippedWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 50, 50), view.Frame(), 900));
    wnd.EnableToolTips();
    CStatusBar status;
    CReBar bands;
    CToolBar tools;
    const UINT nIndicator = ID_SEPARATOR;
    ASSERT_TRUE(status.Create(view.Frame()) && status.SetIndicators(&nIndicator, 1));
    ASSERT_TRUE(bands.Create(view.Frame()) && tools.Create(view.Frame()));
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        wnd.m_strTip = word.str;
        for (const bool bAsked : {false, true}) {
            wnd.m_bAsked = bAsked;
            MSG msg = {};
            msg.hwnd = wnd;
            msg.message = WM_MOUSEMOVE;
            static int s_nTurn = 0;
            msg.pt = CPoint(100 + ++s_nTurn, 100);
            CWnd::WalkPreTranslateTree(nullptr, &msg);
            const HWND hTip = ::FindWindowEx(nullptr, nullptr, TOOLTIPS_CLASS, nullptr);
            wchar_t szTip[300] = L"";
            TTTOOLINFOW tool = {};
            tool.cbSize = TTTOOLINFOW_V2_SIZE;
            tool.hwnd = wnd;
            tool.uId = 7;
            tool.lpszText = szTip;
            ::SendMessage(hTip, TTM_GETTEXTW, 300, reinterpret_cast<LPARAM>(&tool));
            EXPECT_EQ(szTip, word.strWide) << bAsked;
        }
        view.Frame()->SetMessageText(word.str.c_str());
        wchar_t szText[300] = L"";
        ::SendMessage(status, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(szText));
        EXPECT_EQ(szText, word.strWide);
        bands.AddBar(&tools, word.str.c_str());
        REBARBANDINFOW band = {};
        band.cbSize = REBARBANDINFOW_V6_SIZE;
        band.fMask = RBBIM_TEXT;
        band.lpText = szText;
        band.cch = 300;
        ::SendMessage(bands, RB_GETBANDINFOW, 0, reinterpret_cast<LPARAM>(&band));
        EXPECT_EQ(szText, word.strWide);
        bands.GetReBarCtrl().DeleteBand(0);
    }
}

TEST(FramesText, EditViewsAreArchivedAndPrinted) {
    ViewHost<PlainText> view;
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        view->SetWindowText((word.str + "\r\n" + word.str).c_str());
        CMemFile file;
        {
            CArchive ar(&file, CArchive::store);
            view->Serialize(ar);
        }
        view->SetWindowText("before");
        file.SeekToBegin();
        CArchive ar(&file, CArchive::load);
        view->Serialize(ar);
        EXPECT_EQ(WideTextOf(*view), word.strWide + L"\r\n" + word.strWide);

        CDC dc;
        dc.Attach(::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr));
        CRect rect(0, 0, 2000, 2000);
        EXPECT_EQ(view->PrintInsideRect(&dc, rect, 0, view->GetBufferLength()),
                  view->GetBufferLength());
        std::wstring strPaper;
        for (const DrawnText& text : TakeTexts(::CloseEnhMetaFile(dc.Detach()))) {
            strPaper += text.str;
        }
        EXPECT_EQ(strPaper, word.strWide + word.strWide);
    }
}

}  // namespace
