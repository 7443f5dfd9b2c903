// The text window's expected keys: a selection by mouse and keys, drawn and copied.

#include "text/text_wnd.h"

#include "frame/clipboard.h"
#include "frame/edit_command.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "text/core/shown_text.h"
#include "text/text_wnd_core.h"

#include <algorithm>
#include <climits>
#include <oleacc.h>

namespace {

constexpr UINT_PTR kScrollTimer = 1;
constexpr UINT kScrollPause = 50;  // milliseconds from row to row, while the mouse is outside

}  // namespace

// --- What the selection sees

qv::TextSelection& QVTextWnd::Selection() const {
    m_pCore->selection.FollowLines(m_pCore->lines.Generation());
    return m_pCore->selection;
}

qv::ShownText QVTextWnd::Shown() const {
    CRect rcClient;
    GetClientRect(&rcClient);
    return qv::ShownText(*this, m_pCore->view, m_pCore->lines, m_aStyles, m_pCore->font,
                         rcClient.Width(), m_nTabStop);
}

qv::TextPlace QVTextWnd::PlaceUnder(CPoint pt) const {
    qv::ShownText text = Shown();
    const int nRows = text.Rows();
    if (nRows == 0 || m_nCharHeight <= 0) {
        return {};
    }
    const int nAway = static_cast<int>(pt.y) / m_nCharHeight - (pt.y < 0 ? 1 : 0);
    const int nRow = m_nVScrollPos + nAway;
    return nRow >= nRows ? qv::PlaceAt(text, nRows - 1, INT_MAX)
                         : qv::PlaceAt(text, std::max(nRow, 0), static_cast<int>(pt.x));
}

template <class Deed>
void QVTextWnd::Select(Deed deed) {
    qv::MemorySuffices([&] {
        const qv::TextPlace first = Selection().First();
        const qv::TextPlace last = Selection().Last();
        deed(Selection());
        if (m_hWnd != nullptr && (Selection().First() != first || Selection().Last() != last)) {
            InvalidateRect(nullptr, FALSE);
            TellAccessible(EVENT_OBJECT_TEXTSELECTIONCHANGED, CHILDID_SELF);
        }
    });
}

// --- For programs

BOOL QVTextWnd::HasSelection() const {
    return AreExpectedKeysEnabled() && !Selection().IsEmpty();
}

void QVTextWnd::SelectAll() {
    Select([&](qv::TextSelection& selection) { selection.SelectAll(Shown()); });
}

// A line from end to end, or all from the one where the selection began. Not while the mouse
// selects.
bool QVTextWnd::SelectLine(int nLine, bool bExtend) {
    if (Selection().IsDragging()) {
        return false;
    }
    Select([&](qv::TextSelection& selection) {
        const qv::ShownText text = Shown();
        const auto end = [&](int n) {
            return qv::TextPlace{n, static_cast<int>(text.Text(n).size())};
        };
        const bool bFromAnchor = bExtend && !selection.IsEmpty();
        const int nAnchor =
            bFromAnchor ? std::min(selection.Anchor().nLine, text.Lines() - 1) : nLine;
        const bool bUp = nLine < nAnchor;
        selection.Press(bUp ? end(nAnchor) : qv::TextPlace{nAnchor, 0}, false);
        selection.Drag(bUp ? qv::TextPlace{nLine, 0} : end(nLine));
        selection.Release();
    });
    return true;
}

int QVTextWnd::CopySelection() {
    bool bCopied = false;
    qv::MemorySuffices(
        [&] { bCopied = HasSelection() && qv::CopyText(*this, Selection().Selected(Shown())); });
    return bCopied;
}

// --- Keys

// With the shift key, keys that scroll move the selection's end instead.
bool QVTextWnd::TakeExpectedKey(UINT nKey) {
    const qv::HeldKeys held;
    const qv::EditCommand command = qv::EditCommandOf(nKey, held);
    if (command == qv::EditCommand::SelectAll) {
        SelectAll();
        return true;
    }
    if (command == qv::EditCommand::Copy) {
        CopySelection();
        return true;
    }
    if (!held.bShift || held.bMenu) {
        return false;
    }
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    bool bTaken = false;
    Select([&](qv::TextSelection& selection) {
        qv::ShownText text = Shown();
        bTaken =
            selection.Key(text, nKey, held.bControl, m_nVScrollPos, m_pCore->view.ViewSize().cy);
    });
    if (bTaken && watch) {
        qv::MemorySuffices([&] { ShowCaret(); });
    }
    return bTaken;
}

void QVTextWnd::ShowRow(int nRow) {
    const int nPage = m_pCore->view.ViewSize().cy;
    if (nRow < m_nVScrollPos) {
        ScrollTo(nRow, 0);
    } else if (nRow >= m_nVScrollPos + nPage) {
        ScrollTo(nRow, nPage - 1);
    }
}

void QVTextWnd::ShowCaret() {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    const int nByte = Selection().Caret().nByte;
    qv::ShownText text = Shown();
    const int nRow = qv::RowOf(text, Selection().Caret());
    const qv::Size page = m_pCore->view.ViewSize();
    ShowRow(nRow);
    if (watch && !m_bUseProportionalFont) {
        if (nByte < m_nHScrollPos) {
            m_pCore->view.HScroll(SB_THUMBPOSITION, nByte);
        } else if (nByte > m_nHScrollPos + page.cx) {
            m_pCore->view.HScroll(SB_THUMBPOSITION, nByte - page.cx);
        }
    }
}

// --- Mouse

void QVTextWnd::BeginSelection(UINT nFlags, CPoint pt) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Select([&](qv::TextSelection& selection) {
        selection.Press(PlaceUnder(pt), (nFlags & MK_SHIFT) != 0);
    });
    if (watch) {
        SetCapture();
    }
}

void QVTextWnd::OnLButtonDblClk(UINT, CPoint pt) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Default();
    if (watch && AreExpectedKeysEnabled()) {
        Select([&](qv::TextSelection& selection) { selection.PressWord(Shown(), PlaceUnder(pt)); });
    }
}

void QVTextWnd::OnMouseMove(UINT, CPoint pt) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Default();
    if (watch && Selection().IsDragging()) {
        DragSelection(pt);
    }
}

// Outside the window, the timer goes on.
void QVTextWnd::DragSelection(CPoint pt) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Select([&](qv::TextSelection& selection) { selection.Drag(PlaceUnder(pt)); });
    if (!watch) {
        return;
    }
    CRect rcClient;
    GetClientRect(&rcClient);
    if (rcClient.PtInRect(pt)) {
        KillTimer(kScrollTimer);
    } else {
        SetTimer(kScrollTimer, kScrollPause, nullptr);
    }
}

void QVTextWnd::OnTimer(UINT_PTR nTimer) {
    if (nTimer != kScrollTimer || !Selection().IsDragging()) {
        Default();
        return;
    }
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    CPoint pt;
    ::GetCursorPos(&pt);
    ScreenToClient(&pt);
    CRect rcClient;
    GetClientRect(&rcClient);
    if (pt.y < rcClient.top || pt.y >= rcClient.bottom) {
        ScrollBoth(pt.y < rcClient.top ? SB_LINEUP : SB_LINEDOWN, 0);
    }
    if (watch && (pt.x < rcClient.left || pt.x >= rcClient.right)) {
        m_pCore->view.HScroll(pt.x < rcClient.left ? SB_LINELEFT : SB_LINERIGHT, 0);
    }
    if (watch) {
        DragSelection(pt);
    }
}

void QVTextWnd::OnLButtonUp(UINT, CPoint) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Default();
    if (watch && Selection().IsDragging()) {
        ::ReleaseCapture();
    }
}

void QVTextWnd::OnCaptureChanged(CWnd*) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Default();
    if (watch && Selection().IsDragging()) {
        Selection().Release();
        KillTimer(kScrollTimer);
    }
}

// --- Focus and looks

void QVTextWnd::OnSetFocus(CWnd*) {
    FollowFocus();
}

void QVTextWnd::OnKillFocus(CWnd*) {
    FollowFocus();
}

// The selection has another colour without the focus.
void QVTextWnd::FollowFocus() {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    Default();
    if (watch && HasSelection()) {
        InvalidateRect(nullptr, FALSE);
    }
}

// Draws what is selected of a row, and takes it out of the clip: the row is drawn around it.
void QVTextWnd::DrawSelected(CDC& dc, int nRow) {
    if (!HasSelection()) {
        return;
    }
    qv::ShownText text = Shown();
    if (nRow < 0 || nRow >= text.Rows()) {
        return;
    }
    const qv::ShownPiece piece = text.Piece(nRow);
    const qv::TextSelection::Part part = Selection().PartOf(text, piece);
    if (part.nFrom == part.nTo && !part.bBreak) {
        return;
    }
    CRect rcRow;
    CalculateLineRect(nRow - m_nVScrollPos, rcRow);
    CRect rcPart(rcRow);
    rcPart.left = rcRow.left + qv::PixelOf(text, piece, part.nFrom);
    rcPart.right = rcRow.left + qv::PixelOf(text, piece, part.nTo) +
                   (part.bBreak ? (m_nCharWidth + 1) / 2 : 0);
    if (!rcPart.IntersectRect(&rcPart, &rcRow)) {
        return;
    }
    const bool bFocus = ::GetFocus() == m_hWnd;
    const COLORREF crBk = ::GetSysColor(bFocus ? COLOR_HIGHLIGHT : COLOR_BTNFACE);
    const std::string_view shown = text.Text(piece.nLine);
    const int nSaved = dc.SaveDC();
    dc.IntersectClipRect(&rcPart);
    dc.FillSolidRect(&rcPart, crBk);
    dc.SetBkColor(crBk);
    dc.SetTextColor(::GetSysColor(bFocus ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
    qv::DrawTabbedText(dc, rcRow.left, rcRow.top,
                       shown.substr(static_cast<size_t>(piece.nFrom),
                                    static_cast<size_t>(piece.nTo - piece.nFrom)),
                       m_nTabStop, static_cast<int>(rcRow.left));
    dc.RestoreDC(nSaved);
    dc.ExcludeClipRect(&rcPart);
}
