#include "ocx/flex_grid.h"

#include "ocx/class_ids.h"
#include "ocx/core/flex_grid_format.h"
#include "ocx/core/flex_grid_sort.h"

#include <algorithm>

namespace ocx {

namespace {

using Id = FlexGridId;
using qv::FlexGridError;

constexpr LONG SystemColor(int nIndex) {
    return static_cast<LONG>(0x80000000U | static_cast<unsigned>(nIndex));
}

constexpr NumberRule kRules[] = {
    {Id::Appearance, 1, 0, 1},
    {Id::BorderStyle, 1, 0, 1},
    {Id::BackColor, SystemColor(COLOR_WINDOW)},
    {Id::ForeColor, SystemColor(COLOR_WINDOWTEXT)},
    {Id::BackColorFixed, SystemColor(COLOR_BTNFACE)},
    {Id::ForeColorFixed, SystemColor(COLOR_BTNTEXT)},
    {Id::BackColorSel, SystemColor(COLOR_HIGHLIGHT)},
    {Id::ForeColorSel, SystemColor(COLOR_HIGHLIGHTTEXT)},
    {Id::BackColorBkg, SystemColor(COLOR_APPWORKSPACE)},
    {Id::GridColor, 0xC0C0C0},
    {Id::GridColorFixed, 0},
    {Id::FillStyle, 0, 0, 1},
    {Id::TextStyle, 0, 0, 4},
    {Id::TextStyleFixed, 0, 0, 4},
    {Id::FocusRect, 1, 0, 2},
    {Id::HighLight, 1, 0, 2},
    {Id::Redraw, 1},
    {Id::ScrollBars, 3, 0, 3},
    {Id::GridLines, 1, 0, 3},
    {Id::GridLinesFixed, 2, 0, 3},
    {Id::GridLineWidth, 1, 1, 10},
    {Id::SelectionMode, 0, 0, 2},
    {Id::PictureType, 0, 0, 1},
    {Id::AllowBigSelection, 1},
    {Id::AllowUserResizing, 0, 0, 3},
    {Id::MousePointer, 0, 0, 99},
    {Id::OLEDropMode, 0, 0, 1},
};

const ControlKind& GridKind() {
    static const MemberTable s_members(kFlexGridMembers, kRules);
    static constexpr IID kEvents = {
        0x5E1F63A2, 0x7C0B, 0x4B57, {0x9D, 0x1E, 0x36, 0xA8, 0x02, 0x4F, 0xC7, 0x6B}};
    static const ControlKind s_kind = {kFlexGridClass,   kEvents,      L"QVControls Flexible Grid",
                                       L"QVFlexGrid",    &s_members,   {200, 128},
                                       Id::MousePointer, Id::MouseIcon};
    return s_kind;
}

/// Room around a row's text, and beside a title that makes a column wide.
constexpr int kRowPadding = 3;
constexpr int kTitlePadding = 8;

std::string SortKeyOf(std::u16string_view text, bool bIgnoreCase) {
    const DWORD dwFlags = LCMAP_SORTKEY | (bIgnoreCase ? NORM_IGNORECASE : 0);
    const std::wstring_view wide = FromCore(text);
    const int nLength = static_cast<int>(wide.size());
    const int nBytes = nLength == 0 ? 0
                                    : ::LCMapStringW(LOCALE_USER_DEFAULT, dwFlags, wide.data(),
                                                     nLength, nullptr, 0);
    std::string strKey(static_cast<size_t>(nBytes), '\0');
    if (nBytes > 0) {
        ::LCMapStringW(LOCALE_USER_DEFAULT, dwFlags, wide.data(), nLength,
                       reinterpret_cast<LPWSTR>(strKey.data()), nBytes);
    }
    return strKey;
}

/// Sets a flag for as long as it lives.
class Raised {
public:
    explicit Raised(bool& bFlag) : m_bFlag(bFlag), m_bOld(std::exchange(bFlag, true)) {}
    ~Raised() { m_bFlag = m_bOld; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& m_bFlag;
    bool m_bOld;
};

}  // namespace

FlexGrid::FlexGrid() : Control(GridKind()) {}

void Check(FlexGridError error) {
    switch (error) {
        case FlexGridError::None:
            return;
        case FlexGridError::BadRow:
            throw Refusal{kBadIndex, L"There is no such row."};
        case FlexGridError::BadColumn:
            throw Refusal{kBadIndex, L"There is no such column."};
        case FlexGridError::BadCount:
            throw Refusal{kInvalidValue, L"The grid cannot have so many rows or columns."};
        case FlexGridError::BadFixed:
            throw Refusal{kInvalidValue,
                          L"Fixed rows and columns have to be 0, or fewer than all."};
        case FlexGridError::LastRow:
            throw Refusal{kInvalidValue, L"The last row that is not fixed cannot be removed."};
        case FlexGridError::BadValue:
            throw Refusal{kInvalidValue, L"The property cannot have this value."};
    }
}

// ---------------------------------------------------------------------------------- members

HRESULT FlexGrid::Call(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    switch (member.id) {
        case Id::Rows:
        case Id::Cols:
        case Id::FixedRows:
        case Id::FixedCols:
        case Id::TopRow:
        case Id::LeftCol:
        case Id::MergeCells:
        case Id::RowHeightMin:
            return CallCount(member, arguments, pResult);
        case Id::Row:
        case Id::Col:
        case Id::RowSel:
        case Id::ColSel:
        case Id::MouseRow:
        case Id::MouseCol:
            return CallCursor(member, arguments, pResult);
        case Id::TextMatrix: {
            const LONG nRow = arguments.Long(0);
            const LONG nCol = arguments.Long(1);
            if (arguments.IsPut()) {
                PutText(nRow, nCol, arguments.Text(2));
                return S_OK;
            }
            Check(m_model.RowAxis().Has(nRow) ? FlexGridError::None : FlexGridError::BadRow);
            Check(m_model.ColAxis().Has(nCol) ? FlexGridError::None : FlexGridError::BadColumn);
            GiveText(pResult, FromCore(m_model.Text(nRow, nCol)));
            return S_OK;
        }
        case Id::CellLeft:
        case Id::CellTop:
        case Id::CellWidth:
        case Id::CellHeight:
        case Id::RowPos:
        case Id::ColPos:
        case Id::RowIsVisible:
        case Id::ColIsVisible:
            return CallPlace(member, arguments, pResult);
        case Id::ColAlignment:
        case Id::FixedAlignment:
        case Id::ColWidth:
        case Id::RowHeight:
        case Id::MergeRow:
        case Id::MergeCol:
        case Id::RowPosition:
        case Id::ColPosition:
        case Id::RowData:
        case Id::ColData:
            return CallLine(member, arguments, pResult);
        case Id::Text:
        case Id::TextArray:
        case Id::Clip:
        case Id::CellBackColor:
        case Id::CellForeColor:
        case Id::CellAlignment:
        case Id::CellTextStyle:
        case Id::CellPicture:
        case Id::CellPictureAlignment:
            return CallCell(member, arguments, pResult);
        case Id::CellFontName:
        case Id::CellFontSize:
        case Id::CellFontBold:
        case Id::CellFontItalic:
        case Id::CellFontUnderline:
        case Id::CellFontStrikeThrough:
        case Id::CellFontWidth:
            return CallCellFont(member, arguments, pResult);
        case Id::Font:
            Font().CallFont(arguments, pResult);
            return S_OK;
        case Id::FormatString:
            if (arguments.IsPut()) {
                PutFormatString(arguments.Text(0));
            }
            return kToStore;
        case Id::Sort:
            Sort(arguments.Short(0));
            return S_OK;
        case Id::AddItem:
            AddItem(arguments);
            return S_OK;
        case Id::RemoveItem:
            Check(m_model.RemoveItem(arguments.Long(0)));
            SetDirty();
            Changed();
            return S_OK;
        case Id::Clear:
            m_model.Clear();
            SetDirty();
            Changed();
            return S_OK;
        case Id::Version:
            Give(pResult, VT_I2, 1);
            return S_OK;
        case Id::Picture:
            GivePicture(pResult);
            return S_OK;
        case Id::DataSource:
            // There is no data to bind to.
            if (arguments.IsPut() && arguments.Object(0) != nullptr) {
                return E_NOTIMPL;
            }
            return kToStore;
        default:
            return kToStore;
    }
}

HRESULT FlexGrid::CallCursor(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    if (arguments.IsPut()) {
        PutCursor(member.id, arguments.Long(0));
        return S_OK;
    }
    int n = 0;
    switch (member.id) {
        case Id::Row:
            n = m_selection.nRow;
            break;
        case Id::Col:
            n = m_selection.nCol;
            break;
        case Id::RowSel:
            n = m_selection.nRowSel;
            break;
        case Id::ColSel:
            n = m_selection.nColSel;
            break;
        default: {
            EnsureLayout();
            const POINT pt = MousePoint();
            n = member.id == Id::MouseRow ? m_view.RowSpan().Nearest(pt.y)
                                          : m_view.ColSpan().Nearest(pt.x);
            n = std::max(n, 0);
            break;
        }
    }
    Give(pResult, VT_I4, n);
    return S_OK;
}

void FlexGrid::PutCursor(DISPID id, LONG n) {
    const bool bRow = id == Id::Row || id == Id::RowSel;
    if (!(bRow ? m_model.RowAxis() : m_model.ColAxis()).Has(n)) {
        Check(bRow ? FlexGridError::BadRow : FlexGridError::BadColumn);
    }
    qv::FlexGridSelection next = m_selection;
    switch (id) {
        case Id::RowSel:
            next.nRowSel = n;
            break;
        case Id::ColSel:
            next.nColSel = n;
            break;
        default:
            // A current cell that is set anew is all of the selection.
            (bRow ? next.nRow : next.nCol) = n;
            next.nRowSel = next.nRow;
            next.nColSel = next.nCol;
            break;
    }
    Select(next, false);
}

void FlexGrid::PutText(int nRow, int nCol, std::wstring_view text) {
    Check(m_model.SetText(nRow, nCol, ToCore(text)));
    CellChanged(nRow, nCol);
}

void FlexGrid::PutFormatString(std::wstring_view format) {
    const ScreenDC screen;
    const Selected font(screen, Font().Handle());
    const auto width = [&](std::u16string_view title) {
        constexpr size_t kLongest = 1000;
        SIZE size = {};
        ::GetTextExtentPoint32W(screen, FromCore(title).data(),
                                static_cast<int>(std::min(title.size(), kLongest)), &size);
        return static_cast<int>(size.cx) + kTitlePadding;
    };
    Check(qv::ApplyTitles(Model(), qv::ParseFormatString(ToCore(format)), width));
    Changed();
}

void FlexGrid::AddItem(const Arguments& arguments) {
    const LONG nRow = arguments.IsMissing(1) || arguments.Raw(1).vt == VT_EMPTY ? m_model.Rows()
                                                                                : arguments.Long(1);
    Check(nRow < 0 ? FlexGridError::BadRow : m_model.AddItem(ToCore(arguments.Text(0)), nRow));
    SetDirty();
    Changed();
}

void FlexGrid::Sort(short nKind) {
    if (nKind < qv::fgoNone || nKind > qv::fgoCustom) {
        Check(FlexGridError::BadValue);
    }
    qv::FlexGridRange range = m_selection.Range();
    if (m_selection.nRow == m_selection.nRowSel) {
        range.nTop = 0;
        range.nBottom = m_model.Rows() - 1;
    }
    range.nTop = std::max(range.nTop, m_model.FixedRows());
    if (range.nBottom <= range.nTop) {
        return;
    }
    std::vector<int> order =
        qv::SortedRows(m_model, range, static_cast<qv::FlexGridSort>(nKind), SortKeyOf);
    if (nKind == qv::fgoCustom) {
        const unsigned nChanges = m_nChanges;
        const auto compare = [&](int nRow1, int nRow2) -> std::optional<int> {
            short nOrder = 0;
            const HRESULT hr =
                Fire(kCompare, static_cast<LONG>(nRow1), static_cast<LONG>(nRow2), &nOrder);
            return SUCCEEDED(hr) && nChanges == m_nChanges ? std::optional<int>(nOrder)
                                                           : std::nullopt;
        };
        if (!qv::StableSort(order, compare)) {
            return;
        }
    }
    m_model.ReorderRows(range.nTop, order);
    Changed();
}

// ---------------------------------------------------------------------------------- state

qv::FlexGridModel& FlexGrid::Model() {
    if (m_bNeedsMetrics) {
        m_bNeedsMetrics = false;
        const ScreenDC screen;
        const Selected font(screen, Font().Handle());
        TEXTMETRICW metrics = {};
        ::GetTextMetricsW(screen, &metrics);
        m_model.RowAxis().SetDefaultSize(metrics.tmHeight + kRowPadding);
    }
    return m_model;
}

qv::FlexGridSelector FlexGrid::Selector() const {
    return {m_model, static_cast<qv::FlexGridSelectionMode>(Number(Id::SelectionMode)),
            Flag(Id::AllowBigSelection)};
}

void FlexGrid::Changed() {
    ++m_nChanges;
    m_selection = Selector().Fitted(m_selection);
    m_bNeedsLayout = m_bReorderDue = true;
    if (Flag(Id::Redraw)) {
        Invalidate();
    }
}

void FlexGrid::CellChanged(int nRow, int nCol) {
    ++m_nChanges;
    if (!Flag(Id::Redraw)) {
        return;
    }
    if (m_bNeedsLayout || m_model.MergeMode() != qv::fgmNever || Window() == nullptr) {
        Invalidate();
    } else if (m_view.RowSpan().Shows(nRow) && m_view.ColSpan().Shows(nCol)) {
        const qv::Rect cell = m_view.RangeRect({nRow, nCol, nRow, nCol});
        const RECT rect = {cell.left, cell.top, cell.right, cell.bottom};
        ::InvalidateRect(Window(), &rect, FALSE);
        m_spoken.Tell(EVENT_OBJECT_NAMECHANGE, PartOf(nRow, nCol));
    }
}

void FlexGrid::EnsureLayout() {
    Model();
    if (!m_bNeedsLayout || m_bLayingOut || !Flag(Id::Redraw)) {
        return;
    }
    const Raised layingOut(m_bLayingOut);
    m_bNeedsLayout = false;
    if (Window() != nullptr) {
        ShowBars();
    }
    const RECT rect = ClientRect();
    m_view.Refit({static_cast<int>(rect.right), static_cast<int>(rect.bottom)});
    SetBarRanges();
    if (std::exchange(m_bReorderDue, false)) {
        m_spoken.Tell(EVENT_OBJECT_REORDER, CHILDID_SELF);
    }
}

/// A bar that comes or goes tells the window another size, which may be told on: whoever hears of
/// it may close the grid.
void FlexGrid::ShowBars() {
    const auto has = [this](DWORD dwStyle) {
        return (::GetWindowLongW(Window(), GWL_STYLE) & static_cast<LONG>(dwStyle)) != 0;
    };
    const qv::Size bars{::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL)};
    // By the window, not by what shows of it: one too small for a bar has the style and no bar, and
    // a plan that took it for shown would come out another each time.
    RECT rcWindow = {};
    ::GetWindowRect(Window(), &rcWindow);
    RECT rcEdges = {};
    ::AdjustWindowRectEx(&rcEdges,
                         ::GetWindowLongW(Window(), GWL_STYLE) & ~(WS_VSCROLL | WS_HSCROLL), FALSE,
                         ::GetWindowLongW(Window(), GWL_EXSTYLE));
    ::OffsetRect(&rcWindow, -rcWindow.left, -rcWindow.top);
    const qv::Size whole{
        static_cast<int>(std::max(rcWindow.right - (rcEdges.right - rcEdges.left), 0L)),
        static_cast<int>(std::max(rcWindow.bottom - (rcEdges.bottom - rcEdges.top), 0L))};
    const qv::BarPlan plan = m_view.PlanBars(
        whole, bars, static_cast<qv::FlexGridBars>(Number(Id::ScrollBars) & qv::fgbBoth));
    if (plan.bVert != has(WS_VSCROLL)) {
        ::ShowScrollBar(Window(), SB_VERT, plan.bVert);
    }
    if (Window() != nullptr && plan.bHorz != has(WS_HSCROLL)) {
        ::ShowScrollBar(Window(), SB_HORZ, plan.bHorz);
    }
}

void FlexGrid::SetBarRanges() {
    const auto set = [this](int nBar, DWORD dwStyle, const qv::ScrollRange& range) {
        if (Window() == nullptr ||
            (::GetWindowLongW(Window(), GWL_STYLE) & static_cast<LONG>(dwStyle)) == 0) {
            return;
        }
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        if (::GetScrollInfo(Window(), nBar, &info) && info.nMin == range.nMin &&
            info.nMax == range.nMax && info.nPos == range.nPos &&
            info.nPage == static_cast<UINT>(range.nPage)) {
            return;
        }
        // A range that needs no bar would take it away.
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
        info.nMin = range.nMin;
        info.nMax = range.nMax;
        info.nPage = static_cast<UINT>(range.nPage);
        info.nPos = range.nPos;
        ::SetScrollInfo(Window(), nBar, &info, TRUE);
    };
    set(SB_VERT, WS_VSCROLL, m_view.RowSpan().Range());
    set(SB_HORZ, WS_HSCROLL, m_view.ColSpan().Range());
}

void FlexGrid::UpdateEdges() {
    if (Window() == nullptr) {
        return;
    }
    const bool bBorder = Flag(Id::BorderStyle);
    const bool bSunken = bBorder && Flag(Id::Appearance);
    const auto put = [this](int nIndex, LONG nBit, bool bOn) {
        const LONG nStyle = ::GetWindowLongW(Window(), nIndex);
        ::SetWindowLongW(Window(), nIndex, bOn ? nStyle | nBit : nStyle & ~nBit);
    };
    put(GWL_EXSTYLE, WS_EX_CLIENTEDGE, bSunken);
    put(GWL_STYLE, WS_BORDER, bBorder && !bSunken);
    ::SetWindowPos(Window(), nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void FlexGrid::Select(qv::FlexGridSelection next, bool bShow) {
    next = Selector().Fitted(next);
    const bool bTell = !m_bTellingCursor;
    const bool bOther = !next.HasCursorOf(m_selection);
    const Raised telling(m_bTellingCursor);
    if (bTell && bOther) {
        Fire(kLeaveCell);
        next = Selector().Fitted(next);
    }
    const bool bSpread = next.Range() != m_selection.Range();
    m_selection = next;
    TellSelection(bOther, bSpread);
    if (Flag(Id::Redraw)) {
        if (bOther || bSpread) {
            Invalidate();
        }
        if (bShow) {
            EnsureLayout();
            const qv::FlexGridSpan rows = m_view.RowSpan();
            const qv::FlexGridSpan cols = m_view.ColSpan();
            ScrollTo(rows.FirstToShow(next.nRowSel), cols.FirstToShow(next.nColSel));
        }
    }
    if (bTell && bOther) {
        Fire(kEnterCell);
        Fire(kRowColChange);
    }
    if (bTell && bSpread) {
        Fire(kSelChange);
    }
}

bool FlexGrid::ScrollTo(int nTopRow, int nLeftCol) {
    if (!m_view.ScrollTo(nTopRow, nLeftCol)) {
        return false;
    }
    if (Flag(Id::Redraw)) {
        SetBarRanges();
        Invalidate();
    }
    if (!m_bTellingScroll) {
        const Raised telling(m_bTellingScroll);
        Fire(kScroll);
    }
    return true;
}

void FlexGrid::OnStored(const Member& member) {
    switch (member.id) {
        case Id::Redraw:
        case Id::ScrollBars:
            Changed();
            return;
        case Id::BorderStyle:
        case Id::Appearance:
            UpdateEdges();
            break;
        default:
            break;
    }
    if (Flag(Id::Redraw)) {
        Invalidate();
    }
}

void FlexGrid::OnFontChanged() {
    m_bNeedsMetrics = true;
    Changed();
}

void FlexGrid::OnAmbientChanged(DISPID id) {
    if (id == DISPID_AMBIENT_FONT || id == DISPID_UNKNOWN) {
        m_bNeedsMetrics = true;
    }
    Changed();
}

void FlexGrid::Reset() {
    Control::Reset();
    m_model.Reset();
    m_view.ScrollTo(0, 0);
    m_selection = {1, 1, 1, 1};
    m_bNeedsMetrics = true;
    UpdateEdges();
    Changed();
}

void FlexGrid::Collect(std::vector<Record>& records) {
    Control::Collect(records);
    const auto add = [&](DISPID id, LONG nIndex, LONG nValue) {
        Record record = {id, nIndex, {}};
        Give(record.value.Get(), VT_I4, nValue);
        records.push_back(std::move(record));
    };
    add(Id::Rows, kNoIndex, m_model.Rows());
    add(Id::Cols, kNoIndex, m_model.Cols());
    add(Id::FixedRows, kNoIndex, m_model.FixedRows());
    add(Id::FixedCols, kNoIndex, m_model.FixedCols());
    add(Id::MergeCells, kNoIndex, m_model.MergeMode());
    const SIZE dpi = PixelsPerInch();
    add(Id::RowHeightMin, kNoIndex, PixelsToTwips(m_model.RowAxis().LeastSize(), dpi.cy));
    for (int n = 0; n < m_model.Cols(); ++n) {
        const qv::FlexGridLine& column = m_model.ColAxis().Line(n);
        if (column.nSize != qv::FlexGridLine::kDefault) {
            add(Id::ColWidth, n, PixelsToTwips(column.nSize, dpi.cx));
        }
        if (column.nAlignment != qv::fgaGeneral) {
            add(Id::ColAlignment, n, column.nAlignment);
        }
    }
}

}  // namespace ocx
