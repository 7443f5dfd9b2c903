#include "ocx/text_field.h"

#include "ocx/class_ids.h"

#include <algorithm>

namespace ocx {
namespace {

using Id = TextFieldId;

constexpr LONG SystemColor(int nIndex) {
    return static_cast<LONG>(0x80000000U | static_cast<unsigned>(nIndex));
}

constexpr LONG kWidest = 1000;  // of frames and margins, pixels

constexpr NumberRule kRules[] = {
    {Id::Enabled, 1},
    {Id::BackColor, SystemColor(COLOR_WINDOW)},
    {Id::ForeColor, SystemColor(COLOR_WINDOWTEXT)},
    {Id::ThreeDInsideStyle, 0, 0, 2},
    {Id::ThreeDInsideHighlightColor, SystemColor(COLOR_3DLIGHT)},
    {Id::ThreeDInsideShadowColor, SystemColor(COLOR_3DDKSHADOW)},
    {Id::ThreeDInsideWidth, 1, 0, kWidest},
    {Id::ThreeDOutsideStyle, 0, 0, 2},
    {Id::ThreeDOutsideHighlightColor, SystemColor(COLOR_BTNHIGHLIGHT)},
    {Id::ThreeDOutsideShadowColor, SystemColor(COLOR_BTNSHADOW)},
    {Id::ThreeDOutsideWidth, 1, 0, kWidest},
    {Id::ThreeDFrameWidth, 0, 0, kWidest},
    {Id::ThreeDFrameColor, SystemColor(COLOR_BTNFACE)},
    {Id::BorderStyle, 0, 0, 1},
    {Id::BorderColor, SystemColor(COLOR_WINDOWFRAME)},
    {Id::BorderWidth, 1, 0, kWidest},
    {Id::BorderGrayAreaColor, SystemColor(COLOR_BTNFACE)},
    {Id::BorderDropShadow, 0, 0, 1},
    {Id::BorderDropShadowColor, SystemColor(COLOR_3DDKSHADOW)},
    {Id::BorderDropShadowWidth, 3, 0, kWidest},
    {Id::DropShadowColor, SystemColor(COLOR_3DDKSHADOW)},
    {Id::DropShadowWidth, 3, 0, kWidest},
    {Id::AlignTextH, 0, 0, 2},
    {Id::AlignTextV, 2, 0, 2},
    {Id::AllowNull, 1},
    {Id::AutoBeep, 1},
    {Id::HideSelection, 1},
    {Id::MarginLeft, 2, 0, kWidest},
    {Id::MarginTop, 1, 0, kWidest},
    {Id::MarginRight, 2, 0, kWidest},
    {Id::MarginBottom, 1, 0, kWidest},
    {Id::UserEntry, 0, 0, 2},
    {Id::ControlType, 0, 0, 2},
    {Id::OnFocusPosition, 0, 0, 2},
    {Id::AutoCase, 0, 0, 3},
    {Id::MaxLength, 0, 0, MAXLONG},
    {Id::Redraw, 1},
    {Id::Appearance, 1, 0, 1},
};

const ControlKind& FieldKind() {
    static const MemberTable s_members(kTextFieldMembers, kRules);
    static constexpr IID kEvents = {
        0x98ECCE6F, 0x27A4, 0x42E9, {0xA4, 0x6B, 0xE8, 0x29, 0xA4, 0x05, 0xA8, 0x18}};
    static const ControlKind s_kind = {kTextFieldClass,  kEvents,      L"QVControls Text Field",
                                       L"QVTextField",   &s_members,   {121, 22},
                                       Id::MousePointer, Id::MouseIcon};
    return s_kind;
}

}  // namespace

TextField::TextField() : Control(FieldKind()) {}

HRESULT TextField::Call(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    using Part = FontProperty::Part;
    switch (member.id) {
        case Id::Font:
            Font().CallFont(arguments, pResult);
            return S_OK;
        case Id::FontName:
            Font().CallPart(Part::Name, arguments, member.vt, pResult);
            return S_OK;
        case Id::FontBold:
            Font().CallPart(Part::Bold, arguments, member.vt, pResult);
            return S_OK;
        case Id::FontItalic:
            Font().CallPart(Part::Italic, arguments, member.vt, pResult);
            return S_OK;
        case Id::FontStrikethru:
            Font().CallPart(Part::Strikethrough, arguments, member.vt, pResult);
            return S_OK;
        case Id::FontUnderline:
            Font().CallPart(Part::Underline, arguments, member.vt, pResult);
            return S_OK;
        case Id::FontSize:
            Font().CallPart(Part::Size, arguments, member.vt, pResult);
            return S_OK;
        case Id::Text:
        case Id::FpBoundVal:
            return CallText(arguments, pResult);
        case Id::PasswordChar:
            return CallPasswordChar(member, arguments);
        case Id::SelStart:
        case Id::SelLength:
        case Id::SelText:
        case Id::CurrentPosition:
            return CallSelection(member, arguments, pResult);
        case Id::IsNull:
        case Id::IsValid:
        case Id::DataChanged:
            return CallState(member, arguments, pResult);
        default:
            return kToStore;
    }
}

HRESULT TextField::CallText(const Arguments& arguments, VARIANT* pResult) {
    if (arguments.IsPut()) {
        SetFieldText(arguments.Text(arguments.Value()));
    } else {
        GiveText(pResult, FieldText());
    }
    return S_OK;
}

/// The first character alone; the platform's edit can show none that is a pair of units.
HRESULT TextField::CallPasswordChar(const Member& member, const Arguments& arguments) {
    if (!arguments.IsPut()) {
        return kToStore;
    }
    const std::wstring_view first = arguments.Text(arguments.Value()).substr(0, 1);
    if (!first.empty() && (IS_HIGH_SURROGATE(first[0]) || IS_LOW_SURROGATE(first[0]))) {
        throw Refusal{kInvalidValue, L"The character cannot stand for others.", 0};
    }
    Variant value;
    GiveText(value.Get(), first);
    PutInStore(member, value.Value());
    return S_OK;
}

HRESULT TextField::CallSelection(const Member& member, const Arguments& arguments,
                                 VARIANT* pResult) {
    const qv::TextRange selected = Selection();
    const auto nStart = static_cast<LONG>(selected.nStart);
    const auto nEnd = static_cast<LONG>(selected.End());
    const bool bPut = arguments.IsPut();
    switch (member.id) {
        case Id::SelText:
            if (bPut) {
                ReplaceSelection(arguments.Text(arguments.Value()));
            } else {
                GiveText(pResult, FieldText().substr(selected.nStart, selected.nLength));
            }
            break;
        case Id::SelLength:
            if (bPut) {
                Select(nStart, arguments.Long(arguments.Value()));
            } else {
                Give(pResult, member.vt, nEnd - nStart);
            }
            break;
        default:
            if (bPut) {
                Select(arguments.Long(arguments.Value()), 0);
            } else {
                Give(pResult, member.vt, member.id == Id::SelStart ? nStart : nEnd);
            }
            break;
    }
    return S_OK;
}

HRESULT TextField::CallState(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    if (!arguments.IsPut()) {
        Give(pResult, member.vt,
             member.id == Id::IsNull    ? IsNull()
             : member.id == Id::IsValid ? IsValid()
                                        : m_bDataChanged);
        return S_OK;
    }
    const bool bValue = arguments.Bool(arguments.Value());
    if (member.id == Id::DataChanged) {
        m_bDataChanged = bValue;
    } else if (member.id == Id::IsNull && bValue) {
        SetFieldText({});
    }  // a text is not made valid by saying so
    return S_OK;
}

LONG TextField::DefaultNumber(const Member& member) const {
    const bool b3D = member.id != Id::Appearance && Flag(Id::Appearance);
    switch (member.id) {
        case Id::NullColor:
        case Id::InvalidColor:
            return Number(Id::BackColor);
        case Id::ThreeDInsideStyle:
        case Id::ThreeDOutsideStyle:
            return b3D ? 1 : 0;
        case Id::BorderStyle:
            return b3D ? 0 : 1;
        default:
            return Control::DefaultNumber(member);
    }
}

void TextField::OnStored(const Member& member) {
    switch (member.id) {
        case Id::MultiLine:
        case Id::ScrollV:
        case Id::AlignTextH:
        case Id::HideSelection:
            RemakeEdit();
            break;
        case Id::Redraw:
            if (m_hEdit != nullptr && !IsStatic()) {
                ::SendMessageW(m_hEdit, WM_SETREDRAW, Flag(Id::Redraw), 0);
            }
            break;
        default:
            break;
    }
    SetUpEdit();
    PlaceEdit();
    Show();
}

void TextField::OnFontChanged() {
    if (m_hEdit != nullptr) {
        ::SendMessageW(m_hEdit, WM_SETFONT, reinterpret_cast<WPARAM>(Font().Handle()), FALSE);
        SetUpEdit();
        PlaceEdit();
    }
    Show();
}

void TextField::OnAmbientChanged(DISPID) {
    Show();
}

void TextField::Reset() {
    Control::Reset();
    m_strText.clear();
    m_selected = {};
    m_bDataChanged = false;
    if (m_hEdit != nullptr) {
        m_bSetting = true;
        ::SetWindowTextW(m_hEdit, L"");
        m_bSetting = false;
        RemakeEdit();
        PlaceEdit();
    }
    Show();
}

void TextField::Collect(std::vector<Record>& records) {
    // Before the rules, which would change a text that they came too late for.
    const std::wstring strText = FieldText();
    if (!strText.empty()) {
        Record record{Id::Text, kNoIndex, {}};
        GiveText(record.value.Get(), strText);
        records.push_back(std::move(record));
    }
    Control::Collect(records);
}

std::u16string TextField::Units(std::wstring_view text) {
    return {text.begin(), text.end()};
}

std::wstring TextField::Wide(std::u16string_view text) {
    return {text.begin(), text.end()};
}

std::wstring TextField::FieldText() const {
    if (m_hEdit == nullptr) {
        return m_strText;
    }
    std::wstring str(static_cast<std::size_t>(::GetWindowTextLengthW(m_hEdit)) + 1, L'\0');
    str.resize(::GetWindowTextW(m_hEdit, str.data(), static_cast<int>(str.size())));
    return str;
}

qv::TextRange TextField::Selection() const {
    if (m_hEdit == nullptr) {
        return m_selected;
    }
    DWORD nStart = 0;
    DWORD nEnd = 0;
    ::SendMessageW(m_hEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&nStart),
                   reinterpret_cast<LPARAM>(&nEnd));
    return {nStart, nEnd - nStart};
}

void TextField::SetFieldText(std::wstring_view text) {
    std::wstring str = InCase(text.substr(0, text.find(L'\0')), L'\0');
    const std::u16string units = Flag(Id::MultiLine) ? qv::WithEditBreaks(Units(str)) : Units(str);
    str = Wide(qv::CutToLength(units, Number(Id::MaxLength)));
    if (str == FieldText()) {
        return;
    }
    if (m_hEdit == nullptr) {
        m_strText = str;
        m_selected = {};
    } else {
        m_bSetting = true;
        ::SetWindowTextW(m_hEdit, str.c_str());
        m_bSetting = false;
    }
    TellChange();
}

void TextField::Select(LONG nStart, LONG nLength) {
    const qv::TextRange range = qv::ClampRange(Units(FieldText()), nStart, nLength);
    if (m_hEdit == nullptr) {
        m_selected = range;
        return;
    }
    ::SendMessageW(m_hEdit, EM_SETSEL, range.nStart, static_cast<LPARAM>(range.End()));
    ::SendMessageW(m_hEdit, EM_SCROLLCARET, 0, 0);
}

void TextField::ReplaceSelection(std::wstring_view text) {
    const std::wstring strOld = FieldText();
    const qv::TextRange selected = Selection();
    // What a program puts in is not held against the characters that users may type.
    qv::FieldRules rules = Rules();
    rules.allowed = {};
    const wchar_t chBefore = selected.nStart > 0 ? strOld[selected.nStart - 1] : L'\0';
    std::u16string units = Units(InCase(text.substr(0, text.find(L'\0')), chBefore));
    if (rules.bMultiLine) {
        units = qv::WithEditBreaks(units);
    }
    const std::wstring str = Wide(rules.Entry(Units(strOld), selected, units));
    if (m_hEdit == nullptr) {
        m_strText.replace(selected.nStart, selected.nLength, str);
        m_selected = {selected.nStart + str.size(), 0};
    } else {
        m_bSetting = true;
        ::SendMessageW(m_hEdit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(str.c_str()));
        m_bSetting = false;
    }
    if (FieldText() != strOld) {
        TellChange();
    }
}

void TextField::TellChange() {
    SetDirty();
    Show();
    Fire(kChange);
}

}  // namespace ocx
