// Texts on their way to automation objects and back, and tips of cells.
#include "page_text.h"
#include "support/fake_control.h"
#include "support/recording_dispatch.h"
#include "support/recording_parent.h"

#include <QVControls.h>
#include <gtest/gtest.h>

namespace {

class Tips : public QVFlexGridCtrl {
public:
    using QVFlexGridCtrl::m_pToolTip;
    CString m_strTip;
    int GetCellToolTip(int, int, char* pszText) override {
        lstrcpyn(pszText, m_strTip, kToolTipRoom);
        return 1;
    }
};

class Sink : public CCmdTarget {
public:
    CString m_strHeard;
    void OnText(LPCTSTR psz) { m_strHeard = psz; }
    DECLARE_EVENTSINK_MAP()
};
BEGIN_EVENTSINK_MAP(Sink, CCmdTarget)
    ON_EVENT(Sink, 1, 1, &Sink::OnText, VTS_BSTR)
END_EVENTSINK_MAP()

}  // namespace

TEST(AutomationText, GoesAndComesInTheCodePage) {
    for (const PageWord& word : PageWords()) {
        RecordingDispatch object;
        COleDispatchDriver driver(&object);
        std::wstring strSeen;
        object.m_during = [&](DISPPARAMS& params) {
            strSeen = params.cArgs > 0 ? params.rgvarg[0].bstrVal : strSeen;
        };
        driver.SetProperty(1, VT_BSTR, word.str.c_str());
        EXPECT_EQ(strSeen, word.strWide);
        COleVariant answer(word.str.c_str());
        object.m_answer = answer;
        CString strGot;
        driver.GetProperty(1, VT_BSTR, &strGot);
        EXPECT_EQ(strGot, word.str.c_str());

        Sink sink;
        DISPPARAMS params = {answer, nullptr, 1, 0};
        AFX_EVENT event(AFX_EVENT::event, 1, &params);
        sink.OnCmdMsg(1, static_cast<int>(CN_EVENT), &event, nullptr);
        EXPECT_EQ(sink.m_strHeard, word.str.c_str());

        // What an object tells is cut between characters.
        object.m_hResult = DISP_E_EXCEPTION;
        object.m_tell = [&](EXCEPINFO& info) {
            info.bstrDescription = ::SysAllocString(word.strWide.c_str());
        };
        for (UINT nRoom = 1; nRoom <= word.str.size() + 1; ++nRoom) {
            try {
                driver.GetProperty(1, VT_BSTR, &strGot);
            } catch (COleDispatchException* e) {
                char szText[100];
                e->GetErrorMessage(szText, nRoom);
                EXPECT_EQ(word.strWide.find(FromPage(szText)), 0u) << word.str << nRoom;
                e->Delete();
            }
        }
    }
}

TEST(AutomationText, ATipOfACellShowsIt) {
    Tips grid;
    FakeControlClass cls(grid.GetClsid());
    cls.m_bAnyMember = true;
    RecordingParent parent;
    ASSERT_TRUE(grid.Create(nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 99, 99), &parent, 5));
    cls.m_values[4] = cls.m_values[5] = COleVariant(1L);
    grid.EnableToolTip();
    for (const PageWord& word : PageWords()) {
        grid.m_strTip = word.str.c_str();
        WCHAR szShown[2000] = L"";
        TOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = grid.m_hWnd;
        tool.lpszText = szShown;
        ::SendMessageW(grid.m_pToolTip->m_hWnd, TTM_GETTEXTW, 2000,
                       reinterpret_cast<LPARAM>(&tool));
        EXPECT_EQ(szShown, word.strWide);
    }
    grid.DestroyWindow();
}
