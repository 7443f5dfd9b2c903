// Members that speak of the current cell, or of all that are selected.

#include "ocx/flex_grid.h"

#include <algorithm>
#include <array>
#include <memory>

namespace ocx {

namespace {

using Id = FlexGridId;
using Format = qv::FlexGridFormat;

void CheckRange(LONG n, LONG nMin, LONG nMax) {
    if (n < nMin || n > nMax) {
        throw Refusal{kInvalidValue, L"The property cannot have this value."};
    }
}

/// A picture that a cell's format keeps, and the reference with it.
std::shared_ptr<void> Kept(IUnknown* pObject) {
    Ref<IPicture> picture = PictureOf(pObject);
    if (!picture) {
        return nullptr;
    }
    // Takes the reference over, also where it finds no memory.
    return {picture.Detach(), [](IPicture* p) { p->Release(); }};
}

struct FontFlag {
    DISPID id;
    Format::FontFlag flag;
    FontProperty::Part part;
};
constexpr std::array<FontFlag, 4> kFontFlags = {{
    {Id::CellFontBold, Format::Bold, FontProperty::Part::Bold},
    {Id::CellFontItalic, Format::Italic, FontProperty::Part::Italic},
    {Id::CellFontUnderline, Format::Underline, FontProperty::Part::Underline},
    {Id::CellFontStrikeThrough, Format::StrikeThrough, FontProperty::Part::Strikethrough},
}};

/// A million rows by a million columns would never end.
void CheckCellCount(const qv::FlexGridRange& range) {
    constexpr std::int64_t kMostCells = 10'000'000;
    if (std::int64_t{range.nBottom - range.nTop + 1} * (range.nRight - range.nLeft + 1) >
        kMostCells) {
        throw Refusal{kInvalidValue, L"Too many cells are selected."};
    }
}

}  // namespace

qv::FlexGridRange FlexGrid::Targets() const {
    if (!m_model.HasCell(m_selection.nRow, m_selection.nCol)) {
        throw Refusal{kBadIndex, L"There is no current cell."};
    }
    if (Flag(Id::FillStyle)) {
        CheckCellCount(m_selection.Range());
        return m_selection.Range();
    }
    return {m_selection.nRow, m_selection.nCol, m_selection.nRow, m_selection.nCol};
}

void FlexGrid::SetFormats(const std::function<void(Format&)>& set) {
    const qv::FlexGridRange range = Targets();
    for (int nRow = range.nTop; nRow <= range.nBottom; ++nRow) {
        for (int nCol = range.nLeft; nCol <= range.nRight; ++nCol) {
            set(m_model.FormatToSet(nRow, nCol));
        }
    }
    if (Flag(Id::Redraw)) {
        Invalidate();
    }
}

HRESULT FlexGrid::CallCell(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    const Format& format = m_model.Format(m_selection.nRow, m_selection.nCol);
    const bool bPut = arguments.IsPut();
    const int nCols = m_model.Cols();
    switch (member.id) {
        case Id::Text:
            if (bPut) {
                const qv::FlexGridRange range = Targets();
                for (int nRow = range.nTop; nRow <= range.nBottom; ++nRow) {
                    for (int nCol = range.nLeft; nCol <= range.nRight; ++nCol) {
                        PutText(nRow, nCol, arguments.Text(0));
                    }
                }
            } else {
                GiveText(pResult, FromCore(m_model.Text(m_selection.nRow, m_selection.nCol)));
            }
            break;
        case Id::TextArray: {
            // All cells in one row after the other.
            const LONG n = arguments.Long(0);
            if (n < 0 || nCols == 0 || n / nCols >= m_model.Rows()) {
                throw Refusal{kBadIndex, L"There is no such cell."};
            }
            if (bPut) {
                PutText(n / nCols, n % nCols, arguments.Text(1));
            } else {
                GiveText(pResult, FromCore(m_model.Text(n / nCols, n % nCols)));
            }
            break;
        }
        case Id::Clip:
            CheckCellCount(m_selection.Range());
            if (bPut) {
                m_model.SetClip(m_selection.Range(), ToCore(arguments.Text(0)));
                Changed();
            } else {
                GiveText(pResult, FromCore(m_model.Clip(m_selection.Range())));
            }
            break;
        case Id::CellBackColor:
        case Id::CellForeColor: {
            auto Format::*const pColor =
                member.id == Id::CellBackColor ? &Format::crBack : &Format::crText;
            if (bPut) {
                const LONG nColor = arguments.Long(0);
                SetFormats([&](Format& each) { each.*pColor = static_cast<OLE_COLOR>(nColor); });
            } else {
                Give(pResult, VT_I4, static_cast<LONG>(format.*pColor));
            }
            break;
        }
        case Id::CellAlignment:
            if (bPut) {
                const short n = arguments.Short(0);
                CheckRange(n, qv::fgaLeftTop, qv::fgaGeneral);
                SetFormats([&](Format& each) { each.nAlignment = n; });
            } else {
                Give(pResult, VT_I2, m_model.AlignmentOf(m_selection.nRow, m_selection.nCol));
            }
            break;
        case Id::CellPictureAlignment:
            if (bPut) {
                const short n = arguments.Short(0);
                CheckRange(n, qv::fgaLeftTop, qv::fgaRightBottom);
                SetFormats([&](Format& each) { each.nPictureAlignment = n; });
            } else {
                Give(pResult, VT_I2, format.nPictureAlignment);
            }
            break;
        case Id::CellTextStyle:
            if (bPut) {
                const LONG n = arguments.Long(0);
                CheckRange(n, 0, 4);
                SetFormats([&](Format& each) { each.nTextStyle = static_cast<short>(n); });
            } else {
                const bool bFixed = m_model.IsFixed(m_selection.nRow, m_selection.nCol);
                Give(pResult, VT_I4,
                     format.nTextStyle >= 0 ? format.nTextStyle
                                            : Number(bFixed ? Id::TextStyleFixed : Id::TextStyle));
            }
            break;
        default:
            if (bPut) {
                const std::shared_ptr<void> pPicture = Kept(arguments.Object(0));
                SetFormats([&](Format& each) { each.pPicture = pPicture; });
            } else {
                GiveObject(pResult, static_cast<IPicture*>(format.pPicture.get()));
            }
            break;
    }
    return S_OK;
}

HRESULT FlexGrid::CallCellFont(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    const Format& format = m_model.Format(m_selection.nRow, m_selection.nCol);
    const bool bPut = arguments.IsPut();
    constexpr double kLargest = 2048;
    switch (member.id) {
        case Id::CellFontName:
            if (bPut) {
                const std::wstring_view name = arguments.Text(0);
                CheckRange(static_cast<LONG>(name.size()), 0, LF_FACESIZE - 1);
                SetFormats([&](Format& each) { each.strFont = ToCore(name); });
            } else if (!format.strFont.empty()) {
                GiveText(pResult, FromCore(format.strFont));
            } else {
                Font().CallPart(FontProperty::Part::Name, arguments, member.vt, pResult);
            }
            return S_OK;
        case Id::CellFontSize:
        case Id::CellFontWidth: {
            auto Format::*const pPoints =
                member.id == Id::CellFontSize ? &Format::fontSize : &Format::fontWidth;
            if (bPut) {
                const double fPoints = arguments.Real(0);
                if (!(fPoints >= 0 && fPoints <= kLargest)) {
                    throw Refusal{kInvalidValue, L"The property cannot have this value."};
                }
                SetFormats([&](Format& each) { each.*pPoints = static_cast<float>(fPoints); });
            } else if (format.*pPoints > 0 || member.id == Id::CellFontWidth) {
                GiveReal(pResult, VT_R4, format.*pPoints);
            } else {
                Font().CallPart(FontProperty::Part::Size, arguments, member.vt, pResult);
            }
            return S_OK;
        }
        default:
            break;
    }
    const FontFlag& flag =
        *std::ranges::find_if(kFontFlags, [&](const auto& each) { return each.id == member.id; });
    const auto nFlag = static_cast<std::uint8_t>(flag.flag);
    if (bPut) {
        const bool bOn = arguments.Bool(0);
        SetFormats([&](Format& each) {
            each.nFontAsked |= nFlag;
            each.nFontFlags =
                static_cast<std::uint8_t>(bOn ? each.nFontFlags | nFlag : each.nFontFlags & ~nFlag);
        });
    } else if ((format.nFontAsked & nFlag) != 0) {
        Give(pResult, VT_BOOL, (format.nFontFlags & nFlag) != 0);
    } else {
        Font().CallPart(flag.part, arguments, member.vt, pResult);
    }
    return S_OK;
}

}  // namespace ocx
