// What the text window tells a screen reader. Its parts are the lines, numbered from 1, whether
// they show or not; what shows is the value of the whole.

#include "text/text_wnd.h"

#include "frame/core/spoken_text.h"
#include "text/core/shown_text.h"
#include "text/text_wnd_core.h"

#include <algorithm>
#include <climits>
#include <oleacc.h>

namespace {

constexpr std::string_view kLineBreak = "\r\n";

// Of a text without its style code: a TAB is a pause. A code further on is text here, and its
// letter is heard as it shows.
std::string Spoken(std::string_view text) {
    static const qv::StyleTable s_noStyles;
    return qv::SpokenText(text, s_noStyles);
}

CString ToCString(const std::string& str) {
    return CString(str.data(), static_cast<int>(str.size()));
}

// The last row of a line; -1 if it was not laid out.
int LastRow(qv::ShownText& text, int nLine) {
    const int nRow = nLine >= 0 ? qv::RowOf(text, {nLine, INT_MAX}) : -1;
    return nRow >= 0 && text.LineOfRow(nRow) == nLine ? nRow : -1;
}

}  // namespace

LRESULT QVTextWnd::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

// -1 for no line.
int QVTextWnd::PartLine(long nPart) const {
    return nPart > 0 && nPart <= NumLines() ? static_cast<int>(nPart - 1) : -1;
}

CString QVTextWnd::GetAccessibleName(long nPart) {
    const int nLine = PartLine(nPart);
    return nLine >= 0 ? ToCString(Spoken(Shown().Text(nLine)))
                      : QVAccessible::GetAccessibleName(nPart);
}

CString QVTextWnd::GetAccessibleValue(long nPart) {
    if (nPart != CHILDID_SELF) {
        return CString();
    }
    qv::ShownText text = Shown();
    const int nTop = std::max(m_nVScrollPos, 0);
    const int nEnd = std::min(text.Rows(), nTop + m_pCore->view.ViewSize().cy);
    std::string strAll;
    for (int nRow = nTop; nRow < nEnd;) {
        if (nRow > nTop) {
            strAll += kLineBreak;
        }
        // The rows of one line are one text.
        qv::ShownPiece piece = text.Piece(nRow);
        const int nFrom = m_bUseProportionalFont ? piece.nFrom : 0;
        while (++nRow < nEnd && text.LineOfRow(nRow) == piece.nLine) {
            piece = text.Piece(nRow);
        }
        strAll += Spoken(text.Text(piece.nLine)
                             .substr(static_cast<size_t>(nFrom),
                                     static_cast<size_t>(std::max(piece.nTo - nFrom, 0))));
    }
    return ToCString(strAll);
}

long QVTextWnd::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_TEXT : ROLE_SYSTEM_STATICTEXT;
}

long QVTextWnd::GetAccessibleState(long nPart) {
    const int nLine = PartLine(nPart);
    if (nLine < 0) {
        return QVAccessible::GetAccessibleState(nPart) | STATE_SYSTEM_READONLY;
    }
    CRect rc;
    CRect rcClient;
    CRect rcShown;
    GetClientRect(&rcClient);
    const bool bOnScreen =
        GetAccessibleRect(nPart, rc) && rcShown.IntersectRect(&rc, &rcClient) != 0;
    const bool bSelected = GetNextAccessibleSelected(nPart - 1) == nPart;
    long nState = AccessiblePartState(bSelected, false, bOnScreen) | STATE_SYSTEM_READONLY;
    if (!AreExpectedKeysEnabled()) {
        nState &= ~STATE_SYSTEM_SELECTABLE;
    }
    return nState;
}

BOOL QVTextWnd::GetAccessibleRect(long nPart, CRect& rect) {
    const int nLine = PartLine(nPart);
    if (nLine < 0) {
        return QVAccessible::GetAccessibleRect(nPart, rect);
    }
    qv::ShownText text = Shown();
    const int nLast = LastRow(text, nLine);
    if (nLast < 0) {
        return FALSE;
    }
    CRect rcLast;
    CalculateLineRect(LastRow(text, nLine - 1) + 1 - m_nVScrollPos, rect);
    CalculateLineRect(nLast - m_nVScrollPos, rcLast);
    rect.bottom = rcLast.bottom;
    return TRUE;
}

long QVTextWnd::GetAccessibleCount() {
    return NumLines();
}

long QVTextWnd::AccessibleHitTest(CPoint pt) {
    if (pt.y < 0 || m_nCharHeight <= 0) {
        return CHILDID_SELF;
    }
    const qv::ShownText text = Shown();
    const int nRow = m_nVScrollPos + static_cast<int>(pt.y) / m_nCharHeight;
    return nRow < text.Rows() ? text.LineOfRow(nRow) + 1 : CHILDID_SELF;
}

// --- Focus and selection

// Keys scroll the whole.
long QVTextWnd::GetAccessibleFocus() {
    return CHILDID_SELF;
}

// The lines that the selection touches; not one at whose start it ends.
long QVTextWnd::GetNextAccessibleSelected(long nPart) {
    if (!HasSelection()) {
        return 0;
    }
    const qv::TextPlace first = Selection().First();
    const qv::TextPlace last = Selection().Last();
    const int nLast = last.nByte == 0 && last.nLine > first.nLine ? last.nLine - 1 : last.nLine;
    const long nNext = std::max(nPart, static_cast<long>(first.nLine)) + 1;
    return nNext <= std::min(nLast + 1, NumLines()) ? nNext : 0;
}

BOOL QVTextWnd::SelectAccessible(long nPart, long nFlags) {
    const int nLine = PartLine(nPart);
    if (nLine < 0) {
        return QVAccessible::SelectAccessible(nPart, nFlags);
    }
    constexpr long kSelects = SELFLAG_TAKESELECTION | SELFLAG_EXTENDSELECTION;
    const bool bSelects = (nFlags & kSelects) != 0;
    if (!IsWindowEnabled() || (nFlags & ~(kSelects | SELFLAG_TAKEFOCUS)) != 0 ||
        (bSelects && !AreExpectedKeysEnabled())) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    if ((nFlags & SELFLAG_TAKEFOCUS) != 0) {
        SetFocus();
    }
    if (!watch || PartLine(nPart) < 0 ||
        (bSelects && !SelectLine(nLine, (nFlags & SELFLAG_EXTENDSELECTION) != 0)) || !watch) {
        return FALSE;
    }
    qv::ShownText text = Shown();
    if (const int nRow = LastRow(text, nLine); nRow >= 0) {
        ShowRow(nRow);
    }
    return TRUE;
}
