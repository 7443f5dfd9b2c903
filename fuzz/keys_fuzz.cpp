// What keys do in core: type-ahead, rows for spreadsheets, the history of edits, a selection.

#include "frame/core/sheet_text.h"
#include "frame/core/typed_search.h"
#include "fuzz_input.h"
#include "fuzz_text.h"
#include "grid/core/edit_history.h"
#include "support/fake_window.h"
#include "text/core/shown_text.h"

namespace {

class PageMeasure : public FixedMeasure {
public:
    explicit PageMeasure(const qv::MultiByte& page) : m_page(page) {}
    std::size_t CharBytes(std::string_view text) const override { return m_page.CharBytes(text); }

private:
    const qv::MultiByte& m_page;
};

void PlaySheet(FuzzInput& input) {
    const std::string strOther = input.Text();
    qv::ReadSheet(strOther);
    qv::SheetWriter writer;
    std::vector<qv::SheetRow> rows;
    for (unsigned n = input.Byte() % 5; n > 0; --n) {
        qv::SheetRow& row = rows.emplace_back();
        for (unsigned nCell = input.Byte() % 3 + 1; nCell > 0; --nCell) {
            std::string strCell = input.Text();
            for (char& c : strCell) {
                c = c == 'z' ? '"' : c == '{' ? '\n' : c == '\033' ? '\r' : c;
            }
            writer.AddCell(row.emplace_back(strCell));
        }
        writer.EndRow();
    }
    FUZZ_CHECK(qv::ReadSheet(writer.Text()) == rows);
}

void PlayHistory(FuzzInput& input) {
    qv::EditHistory history;
    int nOpen = 0;
    for (unsigned n = input.Byte(); n > 0; --n) {
        switch (const unsigned nDeed = input.Byte(); nDeed % 6) {
            case 0:
                history.BeginStep();
                ++nOpen;
                break;
            case 1:
                nOpen > 0 ? (--nOpen, history.EndStep()) : history.Clear();
                break;
            case 2:
                history.Undo();
                break;
            case 3:
                history.Redo();
                break;
            default:
                history.Add({0, 0}, std::string(nDeed * nDeed * 9, 'x'), input.Text());
        }
        FUZZ_CHECK(history.CheckInvariants());
    }
}

void PlaySelection(FuzzInput& input, const qv::MultiByte& page) {
    PageMeasure measure(page);
    qv::TextViewState state;
    state.m_nCharWidth = FixedMeasure::kCharWidth;
    state.m_nCharHeight = 13;
    state.m_bUseProportionalFont = static_cast<int>(input.Byte() % 4);
    state.m_nHScrollPos = state.m_bUseProportionalFont ? 0 : static_cast<int>(input.Byte() % 9);
    FakeWindow window(100, 100);
    qv::TextLines lines;
    qv::StyleTable styles;
    styles.Add(0, 0);
    qv::TextView view(state, window, lines, styles, measure);
    qv::TextSelection selection;
    for (unsigned n = input.Byte() % 40; n > 0; --n) {
        const int nWidth = static_cast<int>(input.Byte() % 70);
        qv::ShownText text(state, view, lines, styles, measure, nWidth, 8);
        selection.FollowLines(lines.Generation());
        const int nRow = text.Rows() > 0 ? static_cast<int>(input.Byte()) % text.Rows() : -1;
        const qv::TextPlace place =
            nRow < 0 ? qv::TextPlace{} : qv::PlaceAt(text, nRow, input.Int() % 99);
        switch (input.Byte() % 9) {
            case 0:
                lines.Clear();
                break;
            case 1:
                view.Format(nWidth);
                break;
            case 2:
                lines.Add(input.Text() + input.Text(), 0);
                break;
            case 3:
                selection.PressWord(text, place);
                break;
            case 4:
                selection.Press(place, nWidth % 2 != 0);
                break;
            case 5:
                selection.Drag(place);
                break;
            case 6:
                selection.SelectAll(text);
                break;
            default:
                selection.Key(text, VK_PRIOR + input.Byte() % 8, nWidth % 2 != 0, input.Int(),
                              input.Int());
        }
        selection.FollowLines(lines.Generation());
        const qv::ShownText now(state, view, lines, styles, measure, nWidth, 8);
        const std::string strSelected = selection.Selected(now);
        FUZZ_CHECK(selection.IsEmpty() == strSelected.empty());
        for (int i = 0; i < text.Rows(); ++i) {
            const qv::ShownPiece piece = text.Piece(i);
            const auto part = selection.PartOf(text, piece);
            FUZZ_CHECK(part.nFrom <= part.nTo && part.nTo <= std::max(piece.nTo, 0));
        }
    }
}

void PlayTyping(FuzzInput& input, const qv::MultiByte& page) {
    qv::TypedSearch search(page);
    const std::string strRow = input.Text();
    unsigned nTime = 0;
    for (unsigned n = input.Byte(); n > 0; --n) {
        nTime += input.Byte() * 6;
        if (search.Type(static_cast<unsigned char>(input.Byte()), nTime) ==
            qv::TypedSearch::Answer::Searches) {
            const int nRow = search.Find(3, input.Int(), [&](int) { return strRow.c_str(); });
            FUZZ_CHECK((nRow != -1) == search.Fits(strRow.c_str()));
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte page = TextOfKind(input.Byte());
    switch (input.Byte() % 4) {
        case 0:
            PlaySheet(input);
            break;
        case 1:
            PlayHistory(input);
            break;
        case 2:
            PlayTyping(input, page);
            break;
        default:
            PlaySelection(input, page);
    }
    return 0;
}
