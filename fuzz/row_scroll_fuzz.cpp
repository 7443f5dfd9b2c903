// Random rows, sizes and scroll codes on a view whose window tells it every size, also those that
// its own bars bring about, beside a plain view that goes row by row.

#include "frame/core/row_scroll.h"

#include "fuzz_input.h"
#include "support/fake_window.h"

#include <algorithm>

namespace {

class ScrollRun {
public:
    ScrollRun(const std::uint8_t* pData, std::size_t nSize)
        : m_input(pData, nSize), m_window(200, 100) {
        m_limit = static_cast<qv::ThumbLimit>(m_input.Byte() % 3);
        m_rules = {m_input.Byte() % 8 != 0, m_input.Byte() % 2 == 0};
        m_bOverlap = m_input.Byte() % 2 == 0;
        m_content.cyRow = static_cast<int>(m_input.Byte() % 20);
        m_window.onResize = [this] { Sized(); };
        Fit();
    }

    void Run() {
        while (!m_input.AtEnd()) {
            m_nSizes = 0;
            switch (m_input.Byte() % 4) {
                case 0:
                    m_content.nRows = Number();
                    // About as wide as the window.
                    m_content.cx = m_window.size.cx + 20 - static_cast<int>(m_input.Byte() % 64);
                    Fit();
                    break;
                case 1:
                    m_window.size = {static_cast<int>(m_input.Byte() * 2),
                                     static_cast<int>(m_input.Byte() * 2)};
                    Sized();
                    break;
                default:
                    Scroll();
                    break;
            }
            CheckBars();
        }
    }

private:
    // Few, or more than a message has room for.
    int Number() {
        const int n = static_cast<int>(m_input.Byte());
        return m_input.Byte() % 4 == 0 ? n * 301 : n;
    }
    qv::ScrollAxis Axis() const {
        return {m_nPos, m_content.nRows, qv::WholeRows(m_scroll.ClientSize().cy, m_content.cyRow)};
    }

    // The window was told a size, once for each bar that shows or goes.
    void Sized() {
        FUZZ_CHECK(++m_nSizes <= 3);
        FUZZ_CHECK(++m_nDepth <= 2);
        if (!m_scroll.NoteResize()) {
            Fit();
        } else {
            FUZZ_CHECK(!m_scroll.Fit([] { FUZZ_CHECK(false); }));
        }
        --m_nDepth;
    }

    void Fit() {
        FUZZ_CHECK(m_scroll.Fit([this] {
            m_plan = qv::PlanBars(
                m_scroll.SizeWithout(m_window.bShown[SB_HORZ], m_window.bShown[SB_VERT]),
                m_scroll.BarSizes(), m_content, m_rules);
            FUZZ_CHECK(m_scroll.ShowBar(SB_VERT, m_plan.bVert));
            FUZZ_CHECK(m_scroll.ShowBar(SB_HORZ, m_plan.bHorz));
        }));
        m_nPos = Axis().Refitted();
        m_window.ranges[SB_VERT] = Axis().Range();
        FUZZ_CHECK(m_nPos >= 0);
        FUZZ_CHECK(m_nPos == 0 || m_nPos + Axis().nPage <= m_content.nRows);
    }

    // A bar shows exactly where its content does not fit what the other one leaves.
    void CheckBars() const {
        const qv::Size client = m_scroll.ClientSize();
        FUZZ_CHECK(client.cx == m_plan.room.cx && client.cy == m_plan.room.cy);
        const bool bVert = m_window.bShown[SB_VERT];
        const int nWidest = client.cx - (bVert && m_rules.bTight ? 1 : 0);
        FUZZ_CHECK(m_window.bShown[SB_HORZ] == (m_content.cx > nWidest));
        const long long cyRows = static_cast<long long>(m_content.nRows) * m_content.cyRow;
        FUZZ_CHECK(bVert == (m_rules.bVert && cyRows > std::max(client.cy, 0)));
    }

    // The position a row on or back, where that may be.
    bool StepPlain(int& nPos, int nStep) const {
        const bool bMay = nStep > 0 ? nPos + Axis().nPage < m_content.nRows : nPos > 0;
        nPos += bMay ? nStep : 0;
        return bMay;
    }
    int Plain(unsigned nCode, int nPageStep, int nThumb) const {
        int nPos = m_nPos;
        const int nAll = m_content.nRows + nPos;
        const auto go = [&](int nRows, int nStep) {
            while (nRows-- > 0 && StepPlain(nPos, nStep)) {
            }
        };
        switch (nCode) {
            case SB_LINEUP:
            case SB_LINEDOWN:
                go(1, nCode == SB_LINEUP ? -1 : 1);
                break;
            case SB_PAGEUP:
            case SB_PAGEDOWN:
                go(nPageStep, nCode == SB_PAGEUP ? -1 : 1);
                break;
            case SB_TOP:
            case SB_BOTTOM:
                go(nAll, nCode == SB_TOP ? -1 : 1);
                break;
            case SB_THUMBTRACK:
            case SB_THUMBPOSITION:
                if (m_limit == qv::ThumbLimit::Clamped) {
                    nPos = 0;
                    go(nThumb, 1);
                } else if (m_limit == qv::ThumbLimit::Followed) {
                    nPos = nThumb;
                } else if (nThumb >= 0 && (nThumb + Axis().nPage <= m_content.nRows ||
                                           Axis().nPage > m_content.nRows)) {
                    nPos = nThumb;
                }
                break;
            default:
                break;
        }
        return nPos;
    }

    void Scroll() {
        const unsigned nCode = m_input.Byte() % 10;
        const int nMessage = Number() - 3;
        m_window.bPositionKnown = m_input.Byte() % 2 == 0;
        m_window.nTrackPos = Number() - 3;
        m_window.nThumbPos = m_nPos;
        const int nThumb = m_scroll.ThumbPosition(SB_VERT, nCode).value_or(nMessage);
        FUZZ_CHECK(nThumb == (!m_window.bPositionKnown ? nMessage
                              : nCode == SB_THUMBTRACK ? m_window.nTrackPos
                                                       : m_nPos));
        const int nPageStep = Axis().nPage - (m_bOverlap ? 1 : 0);
        const std::optional<int> target =
            qv::Target(Axis(), qv::MoveOf(nCode, {1, nPageStep}, nThumb), m_limit);
        const int nPlain = Plain(nCode, nPageStep, nThumb);
        FUZZ_CHECK(target.value_or(m_nPos) == nPlain);
        FUZZ_CHECK(nCode > SB_LINEDOWN || target.has_value() == (nPlain != m_nPos));
        if (qv::ThumbAtEnd(nPlain, Axis().Range(), Axis()) != nPlain) {
            FUZZ_CHECK(nPlain > std::max(Axis().MaxPos(), 0));  // only a followed thumb is there
        }
        if (m_limit != qv::ThumbLimit::Followed && target) {
            m_nPos = *target;
        }
    }

    FuzzInput m_input;
    FakeWindow m_window;
    qv::RowScroll m_scroll{m_window};
    qv::ThumbLimit m_limit = qv::ThumbLimit::Refused;
    qv::BarRules m_rules;
    bool m_bOverlap = false;
    qv::ScrolledContent m_content;
    qv::BarPlan m_plan;
    int m_nPos = 0;
    int m_nSizes = 0;
    int m_nDepth = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    ScrollRun(pData, nSize).Run();
    return 0;
}
