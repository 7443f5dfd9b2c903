// The system's dialogs for colours, fonts and finding, with objects of ours as their windows; the
// dialog with a background.
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/afx/afx_test_ids.h"

#include <afxdialogex.h>
#include <afxdlgs.h>

#include <dlgs.h>
#include <functional>
#include <gtest/gtest.h>

namespace {

/// Does something once it shows, as its user would.
template <class Base>
class Acting : public Base {
public:
    using Base::Base;
    std::function<void()> m_action = [] {};
    bool m_bThrows = false;

    BOOL OnInitDialog() override {
        if (m_bThrows) {
            AfxThrowResourceException();
        }
        this->PostMessage(kAct);
        return Base::OnInitDialog();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kAct) {
            m_action();
            return 0;
        }
        return Base::WindowProc(message, wParam, lParam);
    }

private:
    static constexpr UINT kAct = WM_APP + 22;
};

class ColorDialog : public Acting<CColorDialog> {
public:
    using Acting::Acting;
    int m_nAsked = 0;
    BOOL OnColorOK() override { return ++m_nAsked > 0; }
};

TEST(ColorDialog, AsksTheProgramAndGivesWhatWasChosen) {
    ColorDialog dlg(RGB(10, 20, 30), CC_FULLOPEN);
    dlg.m_action = [&] {
        constexpr int kRed = 706;  // the system's numbers of its items
        dlg.SetDlgItemInt(kRed, 200);
        dlg.SetDlgItemInt(kRed + 1, 100);
        dlg.SetDlgItemInt(kRed + 2, 50);
        // As the system asks before it closes; not every version does.
        dlg.SendMessage(::RegisterWindowMessage(COLOROKSTRING));
        EXPECT_EQ(dlg.m_nAsked, 1);
        dlg.SendMessage(WM_COMMAND, IDOK);
    };
    EXPECT_EQ(dlg.DoModal(), IDOK);
    EXPECT_EQ(dlg.GetColor(), RGB(200, 100, 50));
    EXPECT_EQ(dlg.m_hWnd, nullptr);

    dlg.m_action = [&] { dlg.SendMessage(WM_COMMAND, IDCANCEL); };
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
    TheTestApp().Forget();
    dlg.m_bThrows = true;
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
    EXPECT_EQ(TheTestApp().m_exceptions.size(), 1u);
    TheTestApp().Forget();
}

TEST(FontDialog, StartsWithAFontAndGivesOneBack) {
    constexpr int kFaces = 0x470;  // the system's number of the item
    LOGFONT lf = {};
    Acting<CFontDialog> first;
    first.m_action = [&] {
        const LRESULT nLast = first.SendDlgItemMessage(kFaces, CB_GETCOUNT) - 1;
        first.SendDlgItemMessage(kFaces, CB_GETLBTEXT, static_cast<WPARAM>(nLast),
                                 reinterpret_cast<LPARAM>(lf.lfFaceName));
        first.SendMessage(WM_COMMAND, IDCANCEL);
    };
    EXPECT_EQ(first.DoModal(), IDCANCEL);
    lf.lfHeight = -16;
    lf.lfUnderline = TRUE;
    Acting<CFontDialog> dlg(&lf);
    LOGFONT shown = {};
    dlg.m_action = [&] {
        dlg.GetCurrentFont(&shown);
        dlg.SendMessage(WM_COMMAND, IDOK);
    };
    EXPECT_EQ(dlg.DoModal(), IDOK);
    EXPECT_STREQ(shown.lfFaceName, lf.lfFaceName);
    EXPECT_STREQ(dlg.GetFaceName(), lf.lfFaceName);
    EXPECT_TRUE(dlg.IsUnderline() && !dlg.IsStrikeOut());
    EXPECT_EQ(dlg.GetSize(), 120) << "tenths of a point";
    CHARFORMAT format;
    dlg.GetCharFormat(format);
    EXPECT_EQ(format.yHeight, 240) << "twips";
    EXPECT_TRUE(format.dwEffects & CFE_UNDERLINE);
    const CFontDialog again(format);
    EXPECT_EQ(again.m_lf.lfHeight, -16);
    EXPECT_STREQ(again.m_lf.lfFaceName, lf.lfFaceName);
}

int s_nFinders = 0;
class Finder : public CFindReplaceDialog {
public:
    Finder() { ++s_nFinders; }
    ~Finder() override { --s_nFinders; }
};

const UINT s_nFind = ::RegisterWindowMessage(FINDMSGSTRING);

class FindingFrame : public CWnd {
public:
    std::function<void(CFindReplaceDialog*)> m_told;

    FindingFrame() {
        CreateEx(0, AfxRegisterWndClass(0), "finds", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                 CRect(0, 0, 300, 200), nullptr, 0);
    }
    ~FindingFrame() override { DestroyWindow(); }

protected:
    afx_msg LRESULT OnFind(WPARAM, LPARAM lParam) {
        m_told(CFindReplaceDialog::GetNotifier(lParam));
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(FindingFrame, CWnd)
    ON_REGISTERED_MESSAGE(s_nFind, &FindingFrame::OnFind)
END_MESSAGE_MAP()

TEST(FindReplaceDialog, TellsItsOwner_AndGoesWithItsWindow) {
    FindingFrame frame;
    auto* pDlg = new Finder;
    std::string strTold;
    frame.m_told = [&](CFindReplaceDialog* p) {
        EXPECT_EQ(p, pDlg);
        strTold += p->IsTerminating() ? "end"
                   : p->ReplaceAll()  ? "all "
                   : p->FindNext()    ? "next "
                                      : "? ";
        strTold += std::string(p->GetFindString()) +
                   (p->ReplaceAll() ? ">" + std::string(p->GetReplaceString()) : "") + " ";
    };
    ASSERT_TRUE(pDlg->Create(FALSE, "what", CString('w', 200), FR_DOWN | FR_MATCHCASE, &frame));
    EXPECT_EQ(pDlg->GetReplaceString().GetLength(), 127);
    EXPECT_TRUE(pDlg->SearchDown() && !pDlg->MatchWholeWord());
    pDlg->ShowWindow(SW_SHOW);
    constexpr int kReplaceText = 0x481;  // the system's numbers of its items
    constexpr int kReplaceAll = 0x401;
    pDlg->SetDlgItemText(kReplaceText, "by");
    ASSERT_TRUE(BringToFront(pDlg->m_hWnd));
    TypeKey(VK_RETURN);
    pDlg->SendMessage(WM_COMMAND, kReplaceAll);
    EXPECT_EQ(strTold, "next what all what>by ");
    TypeKey(VK_ESCAPE);
    EXPECT_TRUE(strTold.find("end") != std::string::npos) << strTold;
    EXPECT_EQ(s_nFinders, 0);

    pDlg = new Finder;
    ASSERT_TRUE(pDlg->Create(TRUE, "x", nullptr, FR_DOWN, &frame));
    frame.m_told = [&](CFindReplaceDialog* p) { p->DestroyWindow(); };
    pDlg->SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(s_nFinders, 0) << "the owner may end it when it is told";
}

TEST(FileDialog, GivesAsManyFilesAsAreChosen) {
    char szFolder[MAX_PATH] = "";
    ::GetTempPath(MAX_PATH, szFolder);
    const std::string strFolder = std::string(szFolder) + "many_files";
    ::CreateDirectory(strFolder.c_str(), nullptr);
    Acting<CFileDialog> dlg(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    std::string strNames;
    dlg.m_action = [&] {
        dlg.SetControlText(cmb13, strNames.c_str());
        dlg.GetParent()->PostMessage(WM_COMMAND, IDOK);
    };
    dlg.m_ofn.lpstrInitialDir = strFolder.c_str();
    std::vector<std::string> paths;
    for (int n = 0; n < 100; ++n) {
        const std::string strName = "a file with a name of some length " + std::to_string(n);
        paths.push_back(strFolder + "\\" + strName);
        CFile(paths.back().c_str(), CFile::modeCreate | CFile::modeWrite).Close();
        strNames += "\"" + strName + "\" ";
    }
    EXPECT_EQ(dlg.DoModal(), IDOK);
    std::vector<std::string> chosen;
    for (POSITION pos = dlg.GetStartPosition(); pos != nullptr && chosen.size() < 200;) {
        chosen.emplace_back(dlg.GetNextPathName(pos));
    }
    EXPECT_EQ(chosen, paths);
    for (const std::string& strPath : paths) {
        ::DeleteFile(strPath.c_str());
    }
    ::RemoveDirectory(strFolder.c_str());
}

TEST(DialogEx, HasAColourOrAPictureBehindItsItems) {
    CBitmap bitmap;
    CClientDC dcScreen(nullptr);
    bitmap.CreateCompatibleBitmap(&dcScreen, 8, 8);
    CDialogEx dlg;
    ASSERT_TRUE(dlg.Create(IDD_MODAL));
    dlg.ShowWindow(SW_SHOW);
    dlg.SetBackgroundColor(RGB(250, 200, 10));
    CRect rcClient;
    dlg.GetClientRect(rcClient);
    const auto pixel = [&](CPoint pt) { return CClientDC(&dlg).GetPixel(pt); };
    const CPoint ptCorner = rcClient.BottomRight() - CSize(2, 2);
    EXPECT_EQ(pixel(CPoint(1, 1)), RGB(250, 200, 10));
    dlg.SetBackgroundImage(static_cast<HBITMAP>(bitmap.m_hObject), CDialogEx::BACKGR_BOTTOMRIGHT,
                           FALSE);
    EXPECT_EQ(pixel(ptCorner), RGB(0, 0, 0));
    EXPECT_EQ(pixel(CPoint(1, 1)), RGB(250, 200, 10));
    dlg.SetBackgroundImage(static_cast<HBITMAP>(nullptr));
    dlg.SetBackgroundColor(static_cast<COLORREF>(-1));
    EXPECT_EQ(pixel(ptCorner), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_FALSE(dlg.SetBackgroundImage(9999u));
}

}  // namespace
