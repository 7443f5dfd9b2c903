// Members that speak of rows and columns: how many there are, how long, where, and what is kept for
// each.

#include "ocx/flex_grid.h"

#include <algorithm>
#include <climits>

namespace ocx {

namespace {

using Id = FlexGridId;
using qv::FlexGridError;

void CheckCount(FlexGridError error, const wchar_t* pszText, LONG nAsked, LONG nMost) {
    if (error == FlexGridError::BadCount) {
        throw Refusal{kInvalidValue, pszText, 0, nAsked, nMost};
    }
    Check(error);
}

LONG Saturated(std::int64_t n) {
    return static_cast<LONG>(std::clamp<std::int64_t>(n, LONG_MIN, LONG_MAX));
}

}  // namespace

HRESULT FlexGrid::CallCount(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    const SIZE dpi = PixelsPerInch();
    if (!arguments.IsPut()) {
        switch (member.id) {
            case Id::Rows:
                Give(pResult, VT_I4, m_model.Rows());
                break;
            case Id::Cols:
                Give(pResult, VT_I4, m_model.Cols());
                break;
            case Id::FixedRows:
                Give(pResult, VT_I4, m_model.FixedRows());
                break;
            case Id::FixedCols:
                Give(pResult, VT_I4, m_model.FixedCols());
                break;
            case Id::MergeCells:
                Give(pResult, VT_I4, m_model.MergeMode());
                break;
            case Id::RowHeightMin:
                Give(pResult, VT_I4, PixelsToTwips(m_model.RowAxis().LeastSize(), dpi.cy));
                break;
            default:
                EnsureLayout();
                Give(pResult, VT_I4, member.id == Id::TopRow ? m_view.TopRow() : m_view.LeftCol());
                break;
        }
        return S_OK;
    }
    const LONG n = arguments.Long(0);
    switch (member.id) {
        case Id::Rows:
            CheckCount(m_model.SetRows(n), L"The grid cannot have %ld rows: 0 to %ld are allowed.",
                       n, qv::FlexGridModel::kMaxRows);
            break;
        case Id::Cols:
            CheckCount(m_model.SetCols(n),
                       L"The grid cannot have %ld columns: 0 to %ld are allowed.", n,
                       qv::FlexGridModel::kMaxCols);
            break;
        case Id::FixedRows:
            Check(m_model.SetFixedRows(n));
            m_view.ScrollTo(n, m_view.LeftCol());  // the view begins behind them
            break;
        case Id::FixedCols:
            Check(m_model.SetFixedCols(n));
            m_view.ScrollTo(m_view.TopRow(), n);
            break;
        case Id::MergeCells:
            Check(m_model.SetMergeMode(n));
            break;
        case Id::RowHeightMin:
            Check(n < 0 ? FlexGridError::BadValue : FlexGridError::None);
            m_model.RowAxis().SetLeastSize(TwipsToPixels(n, dpi.cy));
            break;
        case Id::TopRow:
            Check(m_model.RowAxis().Has(n) ? FlexGridError::None : FlexGridError::BadRow);
            EnsureLayout();
            ScrollTo(n, m_view.LeftCol());
            return S_OK;
        default:
            Check(m_model.ColAxis().Has(n) ? FlexGridError::None : FlexGridError::BadColumn);
            EnsureLayout();
            ScrollTo(m_view.TopRow(), n);
            return S_OK;
    }
    SetDirty();
    Changed();
    return S_OK;
}

HRESULT FlexGrid::CallPlace(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    EnsureLayout();
    const SIZE dpi = PixelsPerInch();
    const qv::FlexGridSpan rows = m_view.RowSpan();
    const qv::FlexGridSpan cols = m_view.ColSpan();
    switch (member.id) {
        case Id::RowPos:
        case Id::RowIsVisible: {
            const LONG n = arguments.Long(0);
            Check(m_model.RowAxis().Has(n) ? FlexGridError::None : FlexGridError::BadRow);
            Give(pResult, member.vt,
                 member.id == Id::RowPos ? PixelsToTwips(Saturated(rows.Pos(n)), dpi.cy)
                                         : rows.Shows(n));
            return S_OK;
        }
        case Id::ColPos:
        case Id::ColIsVisible: {
            const LONG n = arguments.Long(0);
            Check(m_model.ColAxis().Has(n) ? FlexGridError::None : FlexGridError::BadColumn);
            Give(pResult, member.vt,
                 member.id == Id::ColPos ? PixelsToTwips(Saturated(cols.Pos(n)), dpi.cx)
                                         : cols.Shows(n));
            return S_OK;
        }
        default:
            break;
    }
    qv::Rect rect;
    if (m_model.HasCell(m_selection.nRow, m_selection.nCol)) {
        rect = m_view.RangeRect(m_view.MergedAt(m_selection.nRow, m_selection.nCol));
    }
    switch (member.id) {
        case Id::CellLeft:
            Give(pResult, VT_I4, PixelsToTwips(rect.left, dpi.cx));
            break;
        case Id::CellTop:
            Give(pResult, VT_I4, PixelsToTwips(rect.top, dpi.cy));
            break;
        case Id::CellWidth:
            Give(pResult, VT_I4, PixelsToTwips(rect.Width(), dpi.cx));
            break;
        default:
            Give(pResult, VT_I4, PixelsToTwips(rect.Height(), dpi.cy));
            break;
    }
    return S_OK;
}

HRESULT FlexGrid::CallLine(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    constexpr LONG kAll = -1;
    const LONG n = arguments.Long(0);
    const bool bRow = member.id == Id::RowHeight || member.id == Id::MergeRow ||
                      member.id == Id::RowPosition || member.id == Id::RowData;
    const qv::FlexGridAxis& axis = bRow ? Model().RowAxis() : Model().ColAxis();
    const bool bMayBeAll =
        arguments.IsPut() &&
        (member.id == Id::RowHeight || member.id == Id::ColWidth || member.id == Id::ColAlignment ||
         member.id == Id::FixedAlignment || member.id == Id::MergeRow || member.id == Id::MergeCol);
    if (!axis.Has(n) && !(n == kAll && bMayBeAll)) {
        Check(bRow ? FlexGridError::BadRow : FlexGridError::BadColumn);
    }
    if (arguments.IsPut()) {
        const LONG nEnd = n == kAll ? axis.Count() : n + 1;
        for (LONG nLine = std::max(n, 0L); nLine < nEnd; ++nLine) {
            PutLine(member.id, nLine, arguments);
        }
        SetDirty();
        Changed();
        return S_OK;
    }
    const qv::FlexGridLine& line = axis.Line(n);
    switch (member.id) {
        case Id::RowHeight:
            Give(pResult, VT_I4, PixelsToTwips(axis.Size(n), PixelsPerInch().cy));
            break;
        case Id::ColWidth:
            Give(pResult, VT_I4, PixelsToTwips(axis.Size(n), PixelsPerInch().cx));
            break;
        case Id::MergeRow:
        case Id::MergeCol:
            Give(pResult, VT_BOOL, line.bMerge);
            break;
        case Id::ColAlignment:
            Give(pResult, VT_I2, line.nAlignment);
            break;
        case Id::FixedAlignment:
            Give(pResult, VT_I2,
                 line.nFixedAlignment == qv::fgaUnset ? line.nAlignment : line.nFixedAlignment);
            break;
        default:
            Give(pResult, VT_I4, line.nData);
            break;
    }
    return S_OK;
}

void FlexGrid::PutLine(DISPID id, LONG nLine, const Arguments& arguments) {
    qv::FlexGridAxis& rows = Model().RowAxis();
    qv::FlexGridAxis& cols = Model().ColAxis();
    switch (id) {
        case Id::RowHeight:
            PutSize(rows, nLine, arguments.Long(1), PixelsPerInch().cy);
            break;
        case Id::ColWidth:
            PutSize(cols, nLine, arguments.Long(1), PixelsPerInch().cx);
            break;
        case Id::MergeRow:
            rows.SetMerge(nLine, arguments.Bool(1));
            break;
        case Id::MergeCol:
            cols.SetMerge(nLine, arguments.Bool(1));
            break;
        case Id::ColAlignment:
        case Id::FixedAlignment: {
            const short nAlignment = arguments.Short(1);
            if (nAlignment < qv::fgaLeftTop || nAlignment > qv::fgaGeneral) {
                Check(FlexGridError::BadValue);
            }
            if (id == Id::ColAlignment) {
                cols.SetAlignment(nLine, nAlignment);
            } else {
                cols.SetFixedAlignment(nLine, nAlignment);
            }
            break;
        }
        case Id::RowPosition:
            Check(m_model.MoveRow(nLine, arguments.Long(1)));
            break;
        case Id::ColPosition:
            Check(m_model.MoveCol(nLine, arguments.Long(1)));
            break;
        case Id::RowData:
            rows.SetData(nLine, arguments.Long(1));
            break;
        default:
            cols.SetData(nLine, arguments.Long(1));
            break;
    }
}

void FlexGrid::PutSize(qv::FlexGridAxis& axis, LONG nLine, LONG nTwips, LONG nPerInch) {
    // A length that is not 0 does not hide the line.
    axis.SetSize(
        nLine, nTwips > 0 ? std::max(TwipsToPixels(nTwips, nPerInch), 1L) : std::max(nTwips, -1L));
}

}  // namespace ocx
