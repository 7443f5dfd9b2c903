// The flexible grid's selection in order and its cells' tips, on a control that does as it is told.
#include "support/fake_control.h"
#include "support/monkey.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"

#include <QVControls.h>
#include <gtest/gtest.h>
#include <ocx/qvocx.h>

namespace {

constexpr DISPID kRows = 4, kCols = 5, kFixedRows = 6, kFixedCols = 7, kRow = 10, kCol = 11,
                 kRowSel = 12, kColSel = 13, kMouseRow = 27, kMouseCol = 28, kColWidth = 57,
                 kRowHeight = 58, kRowPos = 87;
constexpr long kHeight = 300, kWidth = 900;  // twips of a row and a column

class Grid : public QVFlexGridCtrl {
public:
    using QVFlexGridCtrl::kToolTipRoom;
    using QVFlexGridCtrl::m_pToolTip;

    std::function<int(int nRow, int nCol, char* pszText)> m_tip;
    int GetCellToolTip(int nRow, int nCol, char* pszText) override {
        return m_tip ? m_tip(nRow, nCol, pszText)
                     : QVFlexGridCtrl::GetCellToolTip(nRow, nCol, pszText);
    }

    std::vector<TOOLINFOA> Tools() const {
        std::vector<TOOLINFOA> tools;
        TOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V2_SIZE;
        char szText[80] = "";
        tool.lpszText = szText;
        while (m_pToolTip->SendMessage(TTM_ENUMTOOLSA, tools.size(),
                                       reinterpret_cast<LPARAM>(&tool)) != 0) {
            tools.push_back(tool);
        }
        return tools;
    }

    /// What the tip is answered, as it asks: the result, and the text that it is pointed to.
    std::pair<LRESULT, CString> Ask() {
        NMTTDISPINFOA info{};
        info.hdr = {m_pToolTip->GetSafeHwnd(), 0, TTN_NEEDTEXTA};
        info.lpszText = info.szText;
        const LRESULT lResult =
            ::SendMessage(m_hWnd, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
        return {lResult, info.lpszText};
    }
};

class FlexGridCtrl : public testing::Test {
protected:
    FlexGridCtrl() : m_class(Grid().GetClsid()) {
        m_class.m_bAnyMember = true;
        m_class.m_hook = [this](const std::string& strStep) {
            if (strStep == m_strRefused) {
                return E_ACCESSDENIED;
            }
            if (strStep.substr(0, 7) == "invoke " && !m_class.m_calls.back().args.empty()) {
                const auto& call = m_class.m_calls.back();
                const long n = call.args[0].lVal;
                const long nPos = call.id == kRowPos ? (n - m_nTopRow) * kHeight : n * kWidth;
                Tell(call.id, call.id == kRowHeight  ? kHeight
                              : call.id == kColWidth ? kWidth
                                                     : nPos);
            }
            return S_OK;
        };
        Make();
    }

    void Make() {
        m_pGrid = std::make_unique<Grid>();
        ASSERT_TRUE(
            m_pGrid->Create(nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_parent, 5));
    }
    void Tell(DISPID id, long n) { m_class.m_values[id] = COleVariant(n); }
    void Size(long nRows, long nCols, long nFixedRows, long nFixedCols) {
        Tell(kRows, nRows);
        Tell(kCols, nCols);
        Tell(kFixedRows, nFixedRows);
        Tell(kFixedCols, nFixedCols);
        m_class.m_calls.clear();
    }

    FakeControlClass m_class;
    std::string m_strRefused;
    long m_nTopRow = 0;
    RecordingParent m_parent;
    std::unique_ptr<Grid> m_pGrid;
};

}  // namespace

TEST_F(FlexGridCtrl, TheSelectionIsInOrderWhicheverWayItWasDragged) {
    Tell(kRowSel, 2);
    Tell(kRow, 9);
    Tell(kColSel, 4);
    Tell(kCol, 3);
    int n[4];
    m_pGrid->GetSelectedRange(n[0], n[1], n[2], n[3]);
    EXPECT_TRUE(n[0] == 2 && n[1] == 9 && n[2] == 3 && n[3] == 4);
    m_strRefused = "invoke 13";
    m_pGrid->GetSelectedRange(n[0], n[1], n[2], n[3]);
    EXPECT_TRUE(n[0] == 0 && n[1] == 0 && n[2] == 0 && n[3] == 0);
}

TEST_F(FlexGridCtrl, EachCellThatIsNotFixedHasATool) {
    Size(4, 6, 1, 2);
    m_pGrid->EnableToolTip();
    const auto tools = m_pGrid->Tools();
    ASSERT_EQ(tools.size(), 3u * 4u);
    for (size_t i = 0; i < tools.size(); ++i) {
        const long nRow = 1 + static_cast<long>(i) / 4;
        const long nCol = 2 + static_cast<long>(i) % 4;
        EXPECT_EQ(tools[i].uId, static_cast<UINT_PTR>(nRow * 4 + nCol)) << "the rows multiply";
        EXPECT_EQ(tools[i].hwnd, m_pGrid->m_hWnd);
        EXPECT_EQ(CRect(tools[i].rect),
                  CRect(CPoint(nCol * 60, nRow * 20), CSize(60, 20)));  // of 15 twips a pixel
    }
    Size(9, 9, 0, 0);
    m_pGrid->EnableToolTip();
    EXPECT_EQ(m_pGrid->Tools().size(), tools.size()) << "once";

    Make();
    m_pGrid->EnableToolTip();
    EXPECT_EQ(m_pGrid->Tools().front().uId, 0u);
    EXPECT_EQ(m_pGrid->Tools().front().uFlags & TTF_IDISHWND, 0u) << "a cell, not the window";
    Make();
    Size(3, 3, 3, 1);
    m_pGrid->EnableToolTip();
    EXPECT_TRUE(m_pGrid->m_pToolTip != nullptr && m_pGrid->Tools().empty()) << "fixed alone";
}

TEST_F(FlexGridCtrl, AHundredThousandRowsHaveToolsWhereTheMouseGets) {
    Size(100000, 10, 1, 1);
    m_nTopRow = 99900;
    m_pGrid->EnableToolTip();
    const auto tools = m_pGrid->Tools();
    ASSERT_FALSE(tools.empty());
    EXPECT_LT(tools.size(), 5000u);
    EXPECT_EQ(tools.front().uId, static_cast<UINT_PTR>(99900) * 100000 + 1);
    EXPECT_EQ(CRect(tools.front().rect), CRect(60, 0, 120, 20));
    EXPECT_GT(tools.back().rect.bottom, 200) << "the grid may grow";
}

TEST_F(FlexGridCtrl, TheTipIsToldTheTextOfTheCellUnderTheMouse) {
    Size(4, 4, 1, 1);
    m_pGrid->EnableToolTip();
    EXPECT_EQ(m_pGrid->Ask().first, 0) << "the base has none";
    Tell(kMouseRow, 3);
    Tell(kMouseCol, 2);
    m_pGrid->m_tip = [](int nRow, int nCol, char* pszText) {
        EXPECT_EQ(std::count(pszText, pszText + Grid::kToolTipRoom, '\0'), Grid::kToolTipRoom);
        return std::snprintf(pszText, Grid::kToolTipRoom, "%d,%d", nRow, nCol);
    };
    EXPECT_EQ(m_pGrid->Ask(), std::make_pair(LRESULT{1}, CString("3,2")));
    m_pGrid->m_tip = [](int, int, char* pszText) {
        return std::memset(pszText, 'x', Grid::kToolTipRoom) != nullptr;
    };
    EXPECT_EQ(m_pGrid->Ask().second, CString('x', int{Grid::kToolTipRoom} - 1)) << "filled up";
    m_strRefused = "invoke 27";
    EXPECT_EQ(m_pGrid->Ask().first, 0) << "what the control refuses goes no further";
    MSG msg = {m_pGrid->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(70, 30), 0, {}};
    EXPECT_FALSE(m_pGrid->PreTranslateMessage(&msg));
    m_strRefused.clear();
    m_pGrid->m_tip = [this](int, int, char*) { return m_pGrid.reset(), 1; };
    EXPECT_EQ(m_pGrid->Ask().first, 0) << "deleted meanwhile";
}

TEST(FlexGridTips, FollowTheMouseOverOurGrid_AlsoScrolled) {
    ASSERT_TRUE(SUCCEEDED(QVRegisterControls()));
    RecordingParent parent;
    Grid grid;
    ASSERT_TRUE(grid.Create(nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 5));
    grid.SetRows(50);
    grid.SetCols(3);
    std::string strTold;
    grid.m_tip = [&](int nRow, int nCol, char* pszText) {
        strTold = std::to_string(nRow) + "," + std::to_string(nCol);
        return std::snprintf(pszText, Grid::kToolTipRoom, "%s", strTold.c_str());
    };
    grid.EnableToolTip();
    const auto tools = grid.Tools();
    ASSERT_EQ(tools.size(), 49u * 2u);
    const CPoint point = CRect(tools[2].rect).CenterPoint();  // of row 2, column 1
    MoveTo(grid.m_hWnd, point);
    EXPECT_TRUE(PumpUntil([&] { return strTold == "2,1"; })) << strTold;
    EXPECT_TRUE(PumpUntil([&] { return grid.m_pToolTip->IsWindowVisible(); }));
    grid.SetTopRow(21);
    MoveTo(grid.m_hWnd, point + CPoint(2, 0));
    EXPECT_TRUE(PumpUntil([&] { return strTold == "22,1"; })) << strTold;
    grid.DestroyWindow();
    QVRevokeControls();
}

TEST_F(FlexGridCtrl, FlexGridMonkey) {
    const std::vector<std::function<void(int)>> deeds = {
        [this](int n) { Size(n, n / 2, n / 4, n / 9); },
        [this](int) { m_pGrid->EnableToolTip(); },
        [this](int n) { m_strRefused = n < 0 ? "invoke " + std::to_string(kRows - n) : ""; },
        [this](int n) {
            MSG msg = {m_pGrid->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(n * 5, n * 4), 0, {}};
            m_pGrid->PreTranslateMessage(&msg);
        },
        [this](int) { m_pGrid->Ask(); },
        [this](int n) {
            m_pGrid->m_tip = [this, n](int, int, char*) {
                return n > 40 ? m_pGrid->DestroyWindow() : n;
            };
        },
    };
    PlayInAnyOrder<Grid>(
        m_pGrid, [this] { Make(); }, deeds);
    EXPECT_EQ(m_class.m_nAlive, 0);
}
