#include "ocx/tab_strip.h"

#include "ocx/caption.h"
#include "ocx/class_ids.h"
#include "ocx/tab_strip_members.h"

#include <algorithm>
#include <cwctype>
#include <limits>

namespace ocx {

namespace {

using Id = TabStripId;

constexpr LONG System(int nColor) {
    return static_cast<LONG>(0x80000000U | static_cast<unsigned>(nColor));
}

constexpr LONG kLongestTwips = 1000000;
constexpr NumberRule kRules[] = {
    {Id::BorderStyle, 0, 0, 1},
    {Id::TabHeight, 0, 0, kLongestTwips},
    {Id::TabsPerRow, 0, 0, std::numeric_limits<short>::max()},
    {Id::AlignTextH, 1, 0, 2},
    {Id::AlignTextV, 1, 0, 2},
    {Id::AlignPictureH, 0, 0, 2},
    {Id::AlignPictureV, 1, 0, 2},
    {Id::Orientation, 0, 0, 3},
    {Id::TextOrientation, 0, 0, 1},
    {Id::ThreeD, TRUE},
    {Id::ShowFocusRect, TRUE},
    {Id::DrawFocusRect, 1, 0, 2},
    {Id::TabShape, 1},
    {Id::ChamferedWidth, 2, 0, 100},
    {Id::ChamferedHeight, 2, 0, 100},
    {Id::MarginLeft, 0, 0, kLongestTwips},
    {Id::MarginRight, 0, 0, kLongestTwips},
    {Id::TabMaxWidth, 0, 0, kLongestTwips},
    {Id::ActiveTabInflate, 2, 0, 20},
    {Id::FireTabActivateEvent, TRUE},
    {Id::MousePointer, 0, 0, 99},
    {Id::BackColor, System(COLOR_BTNFACE)},
    {Id::ForeColor, System(COLOR_BTNTEXT)},
    {Id::GrayAreaColor, System(COLOR_BTNFACE)},
    {Id::PageColor, System(COLOR_BTNFACE)},
    {Id::OutlineColor, System(COLOR_WINDOWFRAME)},
    {Id::ThreeDShadowColor, System(COLOR_BTNSHADOW)},
    {Id::ThreeDHighlightColor, System(COLOR_BTNHIGHLIGHT)},
    {Id::ThreeDOuterDark, System(COLOR_3DDKSHADOW)},
    {Id::ThreeDOuterLight, System(COLOR_BTNHIGHLIGHT)},
    {Id::ThreeDOuterWidth, 1, 0, 10},
    {Id::ThreeDOuterWidthActive, 1, 0, 10},
    {Id::ThreeDInnerDark, System(COLOR_BTNSHADOW)},
    {Id::ThreeDInnerLight, System(COLOR_3DLIGHT)},
    {Id::ThreeDInnerWidth, 1, 0, 10},
    {Id::ThreeDInnerWidthActive, 1, 0, 10},
};

// Codes as containers know them.
constexpr HRESULT kReadOnly = static_cast<HRESULT>(0x800A017F);
constexpr DISPID kTabActivate = 7;
constexpr DISPID kTabShown = 8;

const ControlKind& TheKind() {
    static const MemberTable members(kTabStripMembers, kRules);
    static const ControlKind kind = {
        kTabStripClass,
        {0x6B1D9C52, 0x41E7, 0x4F0A, {0x9A, 0x35, 0x7C, 0x02, 0xD8, 0x5E, 0x11, 0xB4}},
        L"QVControls Tab Strip",
        L"QVOcxTabStrip",
        &members,
        {300, 200},
        Id::MousePointer,
        Id::MouseIcon};
    return kind;
}

}  // namespace

TabStrip::TabStrip() : Control(TheKind()) {}

TabStrip::Tab* TabStrip::Current() {
    return m_set.Has(m_nTab) ? &m_tabs[m_nTab] : nullptr;
}

TabStrip::Tab& TabStrip::CurrentToChange() {
    Tab* pTab = Current();
    if (pTab == nullptr) {
        throw Refusal{kBadIndex, L"There is no such tab", 0};
    }
    return *pTab;
}

HRESULT TabStrip::Call(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    const bool bPut = arguments.IsPut();
    switch (member.id) {
        case Id::TabCount:
            if (bPut) {
                SetCount(arguments.Short(0));
            } else {
                Give(pResult, member.vt, m_set.Count());
            }
            return S_OK;
        case Id::ActiveTab:
            if (bPut) {
                SetActive(arguments.Short(0));
            } else {
                Give(pResult, member.vt, m_set.Active());
            }
            return S_OK;
        case Id::Tab:
            if (bPut) {
                const LONG nTab = arguments.Short(0);
                if (nTab < 0 || (nTab > 0 && !m_set.Has(nTab))) {
                    throw Refusal{kBadIndex, L"There is no such tab", 0};
                }
                m_nTab = nTab;
            } else {
                Give(pResult, member.vt, m_nTab);
            }
            return S_OK;
        case Id::MouseOverTab:
            if (bPut) {
                throw Refusal{kReadOnly, L"MouseOverTab can only be read", 0};
            }
            Give(pResult, member.vt, TabUnderPointer());
            return S_OK;
        case Id::TabSetActiveTabPage:
            // A tab has one page here.
            if (arguments.Short(1) != 0) {
                throw Refusal{kInvalidValue, L"There is no such page", 1};
            }
            SetActive(arguments.Short(0));
            Give(pResult, member.vt, m_set.Active() == arguments.Short(0));
            return S_OK;
        default:
            return AnswerTab(member, arguments, pResult) ||
                           AnswerFont(member, arguments, pResult) ||
                           AnswerClient(member, arguments, pResult)
                       ? S_OK
                       : kToStore;
    }
}

/// Properties of a single tab.
bool TabStrip::AnswerTab(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    const bool bPut = arguments.IsPut();
    const Tab* pTab = Current();
    switch (member.id) {
        case Id::TabCaption:
        case Id::TabTag: {
            const auto text = member.id == Id::TabCaption ? &Tab::caption : &Tab::tag;
            if (!bPut) {
                GiveText(pResult, pTab != nullptr ? pTab->*text : std::wstring());
                return true;
            }
            CurrentToChange().*text = arguments.Text(0);
            break;
        }
        case Id::TabState:
            if (!bPut) {
                Give(pResult, member.vt, static_cast<LONG>(m_set.State(m_nTab)));
                return true;
            }
            CurrentToChange();
            SetState(arguments.Short(0));
            break;
        case Id::TabID:
            if (!bPut) {
                Give(pResult, member.vt, pTab != nullptr ? pTab->nId : 0);
                return true;
            }
            CurrentToChange().nId = arguments.Long(0);
            break;
        case Id::TabHelpContextID:
            if (!bPut) {
                Give(pResult, member.vt, pTab != nullptr ? pTab->nHelpContext : 0);
                return true;
            }
            CurrentToChange().nHelpContext = arguments.Short(0);
            break;
        case Id::TabPicture: {
            if (!bPut) {
                GiveObject(pResult, pTab != nullptr ? pTab->picture.Get() : nullptr);
                return true;
            }
            const auto picture = PictureOf(arguments.Object(0));
            CurrentToChange().picture = picture;
            break;
        }
        default:
            return false;
    }
    // Somebody may have changed the tabs meanwhile.
    if (Tab* pChanged = Current()) {
        pChanged->content = {-1, -1};
    }
    SetDirty();
    Relayout();
    if (member.id == Id::TabCaption || member.id == Id::TabState) {
        TellMnemonics();
        m_spoken.Tell(
            member.id == Id::TabCaption ? EVENT_OBJECT_NAMECHANGE : EVENT_OBJECT_STATECHANGE,
            m_nTab + 1);
    }
    return true;
}

bool TabStrip::AnswerFont(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    using Part = FontProperty::Part;
    constexpr struct {
        DISPID id;
        Part part;
    } kParts[] = {
        {Id::FontName, Part::Name},           {Id::FontSize, Part::Size},
        {Id::FontBold, Part::Bold},           {Id::FontItalic, Part::Italic},
        {Id::FontUnderline, Part::Underline}, {Id::FontStrikethru, Part::Strikethrough},
    };
    if (member.id == Id::Font) {
        Font().CallFont(arguments, pResult);
        return true;
    }
    const auto found =
        std::ranges::find_if(kParts, [&](const auto& one) { return one.id == member.id; });
    if (found != std::end(kParts)) {
        Font().CallPart(found->part, arguments, member.vt, pResult);
    }
    return found != std::end(kParts);
}

bool TabStrip::AnswerClient(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    if (member.id < Id::ClientHeight || member.id > Id::ClientWidth) {
        return false;
    }
    if (arguments.IsPut()) {
        throw Refusal{kReadOnly, L"The client area can only be read", 0};
    }
    const qv::Rect rc = Layout().PageInside();
    const SIZE dpi = PixelsPerInch();
    const bool bHorizontal = member.id == Id::ClientLeft || member.id == Id::ClientWidth;
    const int nPixels = member.id == Id::ClientLeft    ? rc.left
                        : member.id == Id::ClientTop   ? rc.top
                        : member.id == Id::ClientWidth ? rc.Width()
                                                       : rc.Height();
    Give(pResult, member.vt, PixelsToTwips(std::max(nPixels, 0), bHorizontal ? dpi.cx : dpi.cy));
    return true;
}

void TabStrip::SetCount(LONG nCount) {
    if (nCount < 0) {
        throw Refusal{kInvalidValue, L"Invalid number of tabs", 0};
    }
    // What is told of the change may change the number again; contents follow it in the end.
    m_tabs.resize(std::max<size_t>(m_tabs.size(), nCount));
    SetDirty();
    Relayout();
    const HRESULT hr = Guarded([&] {
        m_set.SetCount(nCount);
        return S_OK;
    });
    m_tabs.resize(m_set.Count());
    m_nTab = std::clamp(m_nTab, 0, std::max(m_set.Count() - 1, 0));
    Relayout();
    m_spoken.Tell(EVENT_OBJECT_REORDER, CHILDID_SELF);
    Check(hr);
}

void TabStrip::SetActive(LONG nTab) {
    if (!m_set.Has(nTab) || m_set.State(nTab) == qv::TabState::Hidden) {
        throw Refusal{kInvalidValue, L"There is no such tab to activate", 0};
    }
    m_set.Activate(nTab, Flag(Id::FireTabActivateEvent));
    ShowActive();
}

void TabStrip::SetState(LONG nState) {
    constexpr LONG kLast = static_cast<LONG>(qv::TabState::Hidden);
    if (nState < 0 || nState > kLast) {
        throw Refusal{kInvalidValue, L"Invalid state of a tab", 0};
    }
    Relayout();
    m_set.SetState(m_nTab, static_cast<qv::TabState>(nState));
}

bool TabStrip::MayActivate(int nTab) {
    auto nNew = static_cast<short>(nTab);
    short nCancel = 0;
    Fire(kTabActivate, &nNew, &nCancel);
    return nCancel == 0;
}

void TabStrip::Activated(int nTab) {
    ShowActive();
    auto nNew = static_cast<short>(nTab);
    short nCancel = 0;
    Fire(kTabShown, &nNew, &nCancel);
}

void TabStrip::ShowActive() {
    m_bShowActive = true;
    SetDirty();
    Relayout();
    TellActive();
}

void TabStrip::Relayout() {
    m_layout.reset();
    Invalidate();
}

void TabStrip::ForgetContents() {
    for (Tab& tab : m_tabs) {
        tab.content = {-1, -1};
    }
    Relayout();
}

void TabStrip::OnStored(const Member&) {
    ForgetContents();
}

void TabStrip::OnFontChanged() {
    ForgetContents();
}

void TabStrip::OnAmbientChanged(DISPID) {
    ForgetContents();
}

LONG TabStrip::DefaultNumber(const Member& member) const {
    const LONG nDefault = Control::DefaultNumber(member);
    switch (member.id) {
        case Id::BackColor:
        case Id::GrayAreaColor:
        case Id::PageColor:
            return AmbientNumber(DISPID_AMBIENT_BACKCOLOR, nDefault);
        case Id::ForeColor:
            return AmbientNumber(DISPID_AMBIENT_FORECOLOR, nDefault);
        default:
            return nDefault;
    }
}

void TabStrip::Reset() {
    Control::Reset();
    m_tabs.clear();
    m_set.SetCount(0);
    m_nTab = 0;
    m_nFirst = 0;
    m_layout.reset();
}

void TabStrip::Collect(std::vector<Record>& records) {
    Control::Collect(records);
    const auto add = [&](DISPID id) -> VARIANT* {
        records.push_back({id, kNoIndex, {}});
        return records.back().value.Get();
    };
    Give(add(Id::TabCount), VT_I2, m_set.Count());
    for (int n = 0; n < m_set.Count(); ++n) {
        const Tab& tab = m_tabs[n];
        Give(add(Id::Tab), VT_I2, n);
        GiveText(add(Id::TabCaption), tab.caption);
        GiveText(add(Id::TabTag), tab.tag);
        Give(add(Id::TabState), VT_I2, static_cast<LONG>(m_set.State(n)));
        Give(add(Id::TabID), VT_I4, tab.nId);
        Give(add(Id::TabHelpContextID), VT_I2, tab.nHelpContext);
        if (tab.picture) {
            GiveObject(add(Id::TabPicture), tab.picture.Get());
        }
    }
    if (m_set.Active() >= 0) {
        Give(add(Id::ActiveTab), VT_I2, m_set.Active());
    }
    Give(add(Id::Tab), VT_I2, m_nTab);
}

std::wstring TabStrip::Mnemonics() {
    std::wstring characters;
    for (int n = 0; n < m_set.Count(); ++n) {
        const Caption caption(m_tabs[n].caption);
        if (m_set.IsUsable(n) && caption.nMnemonic < caption.text.size()) {
            characters += caption.text[caption.nMnemonic];
        }
    }
    return characters;
}

void TabStrip::OnMnemonicKey(wchar_t ch) {
    for (int n = 0; n < m_set.Count(); ++n) {
        const Caption caption(m_tabs[n].caption);
        if (m_set.IsUsable(n) && caption.nMnemonic < caption.text.size() &&
            std::towupper(caption.text[caption.nMnemonic]) == std::towupper(ch)) {
            GoTo(n);
            return;
        }
    }
}

bool TabStrip::WantsKey(const MSG& msg) {
    if (msg.message != WM_KEYDOWN) {
        return false;
    }
    switch (msg.wParam) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
        case VK_HOME:
        case VK_END:
        case VK_TAB:
            return true;
        case VK_PRIOR:
        case VK_NEXT:
            return ::GetKeyState(VK_CONTROL) < 0;
        default:
            return false;
    }
}

}  // namespace ocx
