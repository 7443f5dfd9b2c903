#include "ocx/text_field.h"

namespace ocx {

using Id = TextFieldId;

static RECT ToRECT(const qv::Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

qv::FieldFrame TextField::Frame(const RECT& rect) const {
    const auto width = [this](DISPID idStyle, DISPID idWidth) {
        return Number(idStyle) != 0 ? Number(idWidth) : 0;
    };
    qv::FieldFrameWidths widths;
    if (Flag(Id::BorderDropShadow)) {
        widths.nShadow = Number(Id::BorderDropShadowWidth);
    } else if (Flag(Id::OnFocusShadow)) {
        widths.nShadow = Number(Id::DropShadowWidth);  // its room stays when it does not show
    }
    widths.nOutside = width(Id::ThreeDOutsideStyle, Id::ThreeDOutsideWidth);
    widths.nFrame = Number(Id::ThreeDFrameWidth);
    widths.nInside = width(Id::ThreeDInsideStyle, Id::ThreeDInsideWidth);
    widths.nBorder = width(Id::BorderStyle, Id::BorderWidth);
    return {{rect.left, rect.top, rect.right, rect.bottom}, widths};
}

int TextField::LineHeight() {
    const ScreenDC dc;
    TEXTMETRICW metrics = {};
    const Selected selected(dc, Font().Handle());
    ::GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
}

RECT TextField::LinesArea(const RECT& rect) {
    const qv::FieldMargins margins = {Number(Id::MarginLeft), Number(Id::MarginTop),
                                      Number(Id::MarginRight), Number(Id::MarginBottom)};
    const qv::Rect client = Frame(rect).client;
    const qv::Rect area = Flag(Id::MultiLine)
                              ? qv::TextArea(client, margins)
                              : qv::LineArea(client, margins, LineHeight(),
                                             static_cast<qv::Across>(Number(Id::AlignTextV)));
    return ToRECT(area);
}

COLORREF TextField::TextColor() const {
    const bool bEnabled = Window() != nullptr ? ::IsWindowEnabled(Window()) : IsEnabled();
    return bEnabled ? Color(Id::ForeColor) : ::GetSysColor(COLOR_GRAYTEXT);
}

COLORREF TextField::BackColor() const {
    return Color(IsNull() ? Id::NullColor : !IsValid() ? Id::InvalidColor : Id::BackColor);
}

void TextField::DrawEdge(HDC hDC, const qv::Rect& rect, DISPID idStyle, DISPID idWidth,
                         DISPID idHighlight, DISPID idShadow) const {
    enum { kNone, kLowered, kRaised };
    const LONG nStyle = Number(idStyle);
    if (nStyle == kNone) {
        return;
    }
    const bool bInverted =
        (Flag(Id::OnFocusInvert3D) || Flag(Id::ThreeDOnFocusInvert)) && HasFocus();
    const bool bLowered = (nStyle == kLowered) != bInverted;
    DrawEdges(hDC, ToRECT(rect), Number(idWidth), Color(bLowered ? idShadow : idHighlight),
              Color(bLowered ? idHighlight : idShadow));
}

void TextField::DrawControl(HDC hDC, const RECT& rect) {
    const qv::FieldFrame frame = Frame(rect);
    const int nShadow = rect.right - frame.outside.right;
    FillSolid(hDC, rect, Color(Id::BorderGrayAreaColor));
    if (nShadow > 0 && (Flag(Id::BorderDropShadow) || HasFocus())) {
        FillSolid(
            hDC, {rect.left + nShadow, rect.top + nShadow, rect.right, rect.bottom},
            Color(Flag(Id::BorderDropShadow) ? Id::BorderDropShadowColor : Id::DropShadowColor));
    }
    FillSolid(hDC, ToRECT(frame.frame), Color(Id::ThreeDFrameColor));
    FillSolid(hDC, ToRECT(frame.border), Color(Id::BorderColor));
    FillSolid(hDC, ToRECT(frame.client), BackColor());
    DrawEdge(hDC, frame.outside, Id::ThreeDOutsideStyle, Id::ThreeDOutsideWidth,
             Id::ThreeDOutsideHighlightColor, Id::ThreeDOutsideShadowColor);
    DrawEdge(hDC, frame.inside, Id::ThreeDInsideStyle, Id::ThreeDInsideWidth,
             Id::ThreeDInsideHighlightColor, Id::ThreeDInsideShadowColor);
    DrawLines(hDC, rect);
}

/// What the edit shows, where there is none: on paper, in a container that designs, of a label.
void TextField::DrawLines(HDC hDC, const RECT& rect) {
    static constexpr UINT kAlignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
    std::wstring str = FieldText();
    const std::wstring_view password = Text(Id::PasswordChar);
    const bool bMultiLine = Flag(Id::MultiLine);
    if (!password.empty() && !bMultiLine) {
        str.assign(str.size(), password.front());
    }
    UINT nFormat = kAlignments[Number(Id::AlignTextH)];
    nFormat |= bMultiLine ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE;
    // Only a label marks a letter: in a text that can be typed, an ampersand is one.
    nFormat |= IsStatic() && !Flag(Id::NoPrefix) ? 0 : DT_NOPREFIX;
    RECT rcLines = LinesArea(rect);
    const SavedDC saved(hDC);
    ::IntersectClipRect(hDC, rcLines.left, rcLines.top, rcLines.right, rcLines.bottom);
    const Selected font(hDC, Font().Handle());
    ::SetTextColor(hDC, TextColor());
    ::SetBkMode(hDC, TRANSPARENT);
    ::DrawTextW(hDC, str.c_str(), static_cast<int>(str.size()), &rcLines, nFormat);
}

void TextField::Show() {
    if (Flag(Id::Redraw)) {
        Invalidate();
        if (m_hEdit != nullptr) {
            ::InvalidateRect(m_hEdit, nullptr, TRUE);
        }
    }
}

}  // namespace ocx
