#include "text/core/text_selection.h"

#include "base/platform_names.h"

#include <algorithm>

namespace qv {

namespace {

int LengthOf(const SelectableText& text, int nLine) {
    return static_cast<int>(text.Text(nLine).size());
}

// At the start of a character of a line that there is.
TextPlace Clamped(const SelectableText& text, TextPlace place) {
    if (place.nLine < 0 || text.Lines() == 0) {
        return {};
    }
    if (place.nLine >= text.Lines()) {
        return {text.Lines() - 1, LengthOf(text, text.Lines() - 1)};
    }
    const std::string_view line = text.Text(place.nLine);
    const auto nWanted = static_cast<std::size_t>(std::max(place.nByte, 0));
    std::size_t n = 0;
    while (n < line.size()) {
        const std::size_t nNext = n + text.CharBytes(line.substr(n));
        if (nNext > nWanted) {
            break;
        }
        n = nNext;
    }
    return {place.nLine, static_cast<int>(n)};
}

TextPlace End(const SelectableText& text) {
    return Clamped(text, {text.Lines(), 0});
}

TextPlace After(const SelectableText& text, TextPlace place) {
    const std::string_view rest = text.Text(place.nLine).substr(static_cast<size_t>(place.nByte));
    if (!rest.empty()) {
        return {place.nLine, place.nByte + static_cast<int>(text.CharBytes(rest))};
    }
    return place.nLine + 1 < text.Lines() ? TextPlace{place.nLine + 1, 0} : place;
}

TextPlace Before(const SelectableText& text, TextPlace place) {
    if (place.nByte > 0) {
        return Clamped(text, {place.nLine, place.nByte - 1});
    }
    return place.nLine > 0 ? TextPlace{place.nLine - 1, LengthOf(text, place.nLine - 1)} : place;
}

// What stands together as a word: letters and digits, blanks, or other characters.
enum class Kind { Blank, Word, Other };

Kind KindAt(std::string_view line, std::size_t n) {
    const auto c = static_cast<unsigned char>(line[n]);
    if (c == ' ' || c == '\t') {
        return Kind::Blank;
    }
    const bool bLetter = (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
    return bLetter || (c >= '0' && c <= '9') || c == '_' || c >= 0x80 ? Kind::Word : Kind::Other;
}

// The runs of one kind in a line: run(nFrom, nTo, kind) is called until it gives true.
template <class Run>
void WalkRuns(const SelectableText& text, std::string_view line, Run run) {
    for (std::size_t n = 0; n < line.size();) {
        const std::size_t nFrom = n;
        const Kind kind = KindAt(line, n);
        while (n < line.size() && KindAt(line, n) == kind) {
            n += text.CharBytes(line.substr(n));
        }
        if (run(static_cast<int>(nFrom), static_cast<int>(n), kind)) {
            return;
        }
    }
}

// The start of the next word, as keys go from one to the other; a line's end counts as one.
TextPlace NextWord(const SelectableText& text, TextPlace place) {
    const std::string_view line = text.Text(place.nLine);
    if (place.nByte >= static_cast<int>(line.size())) {
        return After(text, place);
    }
    TextPlace next{place.nLine, static_cast<int>(line.size())};
    WalkRuns(text, line, [&](int nFrom, int, Kind kind) {
        const bool bNext = nFrom > place.nByte && kind != Kind::Blank;
        next.nByte = bNext ? nFrom : next.nByte;
        return bNext;
    });
    return next;
}

TextPlace PreviousWord(const SelectableText& text, TextPlace place) {
    if (place.nByte == 0) {
        return Before(text, place);
    }
    TextPlace previous{place.nLine, 0};
    WalkRuns(text, text.Text(place.nLine), [&](int nFrom, int, Kind kind) {
        if (nFrom < place.nByte && kind != Kind::Blank) {
            previous.nByte = nFrom;
        }
        return nFrom >= place.nByte;
    });
    return previous;
}

}  // namespace

// --- Rows

int PixelOf(SelectableText& text, const ShownPiece& piece, int nByte) {
    if (nByte <= piece.nFrom) {
        return 0;
    }
    const auto nFrom = static_cast<std::size_t>(piece.nFrom);
    std::vector<int> widths;
    text.Widths(text.Text(piece.nLine).substr(nFrom, static_cast<size_t>(piece.nTo) - nFrom),
                widths);
    const auto n = static_cast<std::size_t>(nByte - piece.nFrom);
    return widths.empty() ? 0 : widths[std::min(n, widths.size()) - 1];
}

TextPlace PlaceAt(SelectableText& text, int nRow, int x) {
    const ShownPiece piece = text.Piece(nRow);
    const auto nFrom = static_cast<std::size_t>(piece.nFrom);
    const std::string_view shown =
        text.Text(piece.nLine).substr(nFrom, static_cast<size_t>(piece.nTo) - nFrom);
    std::vector<int> widths;
    text.Widths(shown, widths);
    std::size_t n = 0;
    for (int nLeft = 0; n < shown.size();) {
        const std::size_t nNext = n + text.CharBytes(shown.substr(n));
        const int nRight = widths[nNext - 1];
        if (x < nLeft + (nRight - nLeft + 1) / 2) {
            break;
        }
        n = nNext;
        nLeft = nRight;
    }
    return Clamped(text, {piece.nLine, piece.nFrom + static_cast<int>(n)});
}

int RowOf(SelectableText& text, TextPlace place) {
    int nLow = 0;  // the first row of a line behind this one
    for (int nHigh = text.Rows(); nLow < nHigh;) {
        const int nMid = nLow + (nHigh - nLow) / 2;
        if (text.LineOfRow(nMid) <= place.nLine) {
            nLow = nMid + 1;
        } else {
            nHigh = nMid;
        }
    }
    int nRow = nLow - 1;
    while (nRow > 0 && text.LineOfRow(nRow) == place.nLine &&
           text.LineOfRow(nRow - 1) == place.nLine && text.Piece(nRow).nFrom > place.nByte) {
        --nRow;
    }
    return nRow;
}

// --- The selection

void TextSelection::FollowLines(unsigned nGeneration) {
    if (nGeneration != m_nGeneration) {
        Clear();
        m_nGeneration = nGeneration;
    }
}

void TextSelection::Press(TextPlace place, bool bExtend) {
    if (!bExtend || !m_bPlaced) {
        m_anchor = place;
    }
    m_caret = place;
    m_nGoal = -1;
    m_bPlaced = m_bDragging = true;
}

void TextSelection::PressWord(const SelectableText& text, TextPlace place) {
    place = Clamped(text, place);
    Press(place, false);
    m_bDragging = false;
    if (text.Lines() > 0) {
        WalkRuns(text, text.Text(place.nLine), [&](int nFrom, int nTo, Kind) {
            m_anchor.nByte = nFrom;
            m_caret.nByte = nTo;
            return nTo > place.nByte;
        });
    }
}

void TextSelection::Drag(TextPlace place) {
    if (m_bDragging) {
        m_caret = place;
    }
}

void TextSelection::SelectAll(const SelectableText& text) {
    m_anchor = {};
    m_caret = End(text);
    m_nGoal = -1;
    m_bPlaced = true;
}

bool TextSelection::Key(SelectableText& text, unsigned nKey, bool bControl, int nTopRow,
                        int nPage) {
    if (nKey < VK_PRIOR || nKey > VK_DOWN) {
        return false;
    }
    const int nLastRow = text.Rows() - 1;
    if (nLastRow < 0) {
        return true;
    }
    if (!m_bPlaced) {
        m_anchor = m_caret = PlaceAt(text, std::clamp(nTopRow, 0, nLastRow), 0);
        m_bPlaced = true;
    }
    m_anchor = Clamped(text, m_anchor);
    m_caret = Clamped(text, m_caret);
    const int nRow = RowOf(text, m_caret);
    const ShownPiece piece = text.Piece(nRow);
    int nRows = 0;
    switch (nKey) {
        case VK_LEFT:
            m_caret = bControl ? PreviousWord(text, m_caret) : Before(text, m_caret);
            break;
        case VK_RIGHT:
            m_caret = bControl ? NextWord(text, m_caret) : After(text, m_caret);
            break;
        case VK_HOME:
            m_caret = bControl ? TextPlace{} : Clamped(text, {piece.nLine, piece.nFrom});
            break;
        case VK_END:
            m_caret = bControl ? End(text) : Clamped(text, {piece.nLine, piece.nTo});
            break;
        default:
            nRows = nKey == VK_UP || nKey == VK_DOWN ? 1 : std::max(nPage, 1);
            break;
    }
    if (nRows == 0) {
        m_nGoal = -1;
        return true;
    }
    if (m_nGoal < 0) {
        m_nGoal = PixelOf(text, piece, m_caret.nByte);
    }
    const bool bUp = nKey == VK_UP || nKey == VK_PRIOR;
    if (nRow == (bUp ? 0 : nLastRow)) {
        m_caret = bUp ? TextPlace{} : End(text);
    } else {
        m_caret = PlaceAt(text,
                          bUp ? std::max(nRow - nRows, 0)
                              : static_cast<int>(std::min<long long>(
                                    static_cast<long long>(nRow) + nRows, nLastRow)),
                          m_nGoal);
    }
    return true;
}

TextSelection::Part TextSelection::PartOf(const SelectableText& text,
                                          const ShownPiece& piece) const {
    const TextPlace first = First();
    const TextPlace last = Last();
    if (IsEmpty() || piece.nLine < first.nLine || piece.nLine > last.nLine) {
        return {};
    }
    const int nFrom = first.nLine < piece.nLine ? 0 : first.nByte;
    const int nTo = last.nLine > piece.nLine ? piece.nTo : last.nByte;
    Part part{std::clamp(nFrom, piece.nFrom, piece.nTo), std::clamp(nTo, piece.nFrom, piece.nTo)};
    part.bBreak = last.nLine > piece.nLine && piece.nTo >= LengthOf(text, piece.nLine);
    return part;
}

std::string TextSelection::Selected(const SelectableText& text) const {
    std::string strText;
    if (IsEmpty() || text.Lines() == 0) {
        return strText;
    }
    const TextPlace first = Clamped(text, First());
    const TextPlace last = Clamped(text, Last());
    for (int nLine = first.nLine; nLine <= last.nLine; ++nLine) {
        const std::string_view line = text.Text(nLine);
        const auto nFrom = static_cast<std::size_t>(nLine == first.nLine ? first.nByte : 0);
        const std::size_t nTo =
            nLine == last.nLine ? static_cast<std::size_t>(last.nByte) : line.size();
        strText += line.substr(nFrom, nTo - nFrom);
        strText += nLine < last.nLine ? "\r\n" : "";
    }
    return strText;
}

}  // namespace qv
