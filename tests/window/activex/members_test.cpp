// Each member of the wrappers, by a list of its own: what a control sees of a call, and what comes
// back of what it gives.
#include "support/fake_control.h"
#include "support/recording_dispatch.h"
#include "support/recording_parent.h"

#include <QVControls.h>
#include <gtest/gtest.h>
#include <sstream>

namespace {

/// Values for a parameter, different at each place. References lead into it.
struct Sample {
    explicit Sample(int nPlace) : n(static_cast<short>(7 + nPlace)), l(70000 + nPlace) {
        str.Format("text%d", nPlace);
        var.vt = VT_R8;
        var.dblVal = 2.25;
    }

    short n;
    long l;
    float flt = 1.5F;
    BOOL b = 5;
    CString str;
    VARIANT var{};
    RecordingDispatch* pObject = nullptr;

    template <class A>
    A As() {
        if constexpr (std::is_same_v<A, short>) {
            return n;
        } else if constexpr (std::is_same_v<A, long>) {
            return l;
        } else if constexpr (std::is_same_v<A, float>) {
            return flt;
        } else if constexpr (std::is_same_v<A, BOOL>) {
            return b;
        } else if constexpr (std::is_same_v<A, LPCTSTR>) {
            return str;
        } else if constexpr (std::is_same_v<A, const VARIANT&>) {
            return var;
        } else if constexpr (std::is_same_v<A, short*>) {
            return &n;
        } else if constexpr (std::is_same_v<A, long*>) {
            return &l;
        } else if constexpr (std::is_same_v<A, BOOL*>) {
            return &b;
        } else {
            return pObject;
        }
    }
};

/// What a control sees of a parameter of a type at a place.
std::string Seen(const std::string& strType, int nPlace) {
    static const std::map<std::string, std::string> kSeen = {{"R4", "R4 1.5"},
                                                             {"BOOL", "BOOL -1"},
                                                             {"VARIANT", "R8 2.25"},
                                                             {"DISPATCH", "DISPATCH object"},
                                                             {"UNKNOWN", "UNKNOWN object"},
                                                             {"FONT", "DISPATCH object"},
                                                             {"PICTURE", "DISPATCH object"},
                                                             {"BOOL*", "BOOL* -1"}};
    if (kSeen.contains(strType)) {
        return kSeen.at(strType);
    }
    const std::string strPlace = std::to_string(nPlace);
    return strType == "BSTR"
               ? "BSTR text" + strPlace
               : strType + " " + std::to_string((strType[1] == '2' ? 7 : 70000) + nPlace);
}

template <class R>
std::string TypeName() {
    return std::is_same_v<R, void>         ? ""
           : std::is_same_v<R, short>      ? "I2"
           : std::is_same_v<R, long>       ? "I4"
           : std::is_same_v<R, float>      ? "R4"
           : std::is_same_v<R, CString>    ? "BSTR"
           : std::is_same_v<R, BOOL>       ? "BOOL"
           : std::is_same_v<R, LPDISPATCH> ? "DISPATCH"
           : std::is_same_v<R, LPUNKNOWN>  ? "UNKNOWN"
           : std::is_same_v<R, COleFont>   ? "FONT"
           : std::is_same_v<R, CPicture>   ? "PICTURE"
                                           : "?";
}

std::vector<std::string> Split(std::string strTypes) {
    std::vector<std::string> types;
    std::istringstream words(strTypes);
    for (std::string strType; words >> strType;) {
        types.push_back(strType.substr(0, strType.find(',')));
    }
    return types;
}

template <class W>
class Members {
public:
    explicit Members(REFCLSID clsid) : m_class(clsid) {
        m_class.m_bAnyMember = true;
        m_class.m_hook = [this](const std::string& strStep) { return LookAt(strStep); };
        EXPECT_TRUE(m_wrapper.Create(nullptr, WS_CHILD, CRect(0, 0, 9, 9), &m_parent, 5));
        EXPECT_EQ(m_wrapper.GetClsid(), clsid);
    }
    ~Members() {
        m_wrapper.DestroyWindow();
        m_class.m_calls.clear();
        m_class.m_values.clear();
        EXPECT_EQ(m_object.m_nRefs, 1) << "references";
    }

    /// A member's types are the control's: index arguments or parameters, and what it gives.
    template <class R, class... A>
    void Check(const char* pszName, R (W::*pfnMember)(A...), DISPID id, const char* pszHow,
               const std::string& strGives, const std::string& strTypes) {
        SCOPED_TRACE(pszName);
        ++m_nMembers;
        const std::vector<std::string> types = Split(strTypes);
        ASSERT_EQ(types.size(), sizeof...(A));
        EXPECT_EQ(TypeName<R>(), strGives);
        std::string strSeen = std::to_string(id) + " " + pszHow;
        std::vector<Sample> samples;
        for (int i = 0; i < static_cast<int>(types.size()); ++i) {
            strSeen += (i == 0 ? " " : ", ") + Seen(types[static_cast<size_t>(i)], i);
            samples.emplace_back(i).pObject = &m_object;
        }
        const auto call = [&]<size_t... I>(W & wrapper, std::index_sequence<I...>)->R {
            return (wrapper.*pfnMember)(samples[I].template As<A>()...);
        };
        constexpr auto kAll = std::index_sequence_for<A...>();
        m_strSeen.clear();
        m_class.m_calls.clear();
        m_class.m_values.clear();
        if constexpr (std::is_void_v<R>) {
            call(m_bare, kAll);
            call(m_wrapper, kAll);
        } else {
            EXPECT_TRUE(IsNothing(call(m_bare, kAll)) && m_strSeen.empty()) << "without a control";
            ExpectGiven<R>(id, [&] { return call(m_wrapper, kAll); });
        }
        EXPECT_EQ(m_strSeen, strSeen);
        for (size_t i = 0; i < types.size(); ++i) {
            if (types[i].back() == '*') {
                EXPECT_TRUE(samples[i].n != Sample(static_cast<int>(i)).n ||
                            samples[i].l != Sample(static_cast<int>(i)).l || samples[i].b == FALSE)
                    << "what the control writes comes back";
            }
        }
    }

    template <class G, class S>
    void Pair(const char* pszName, G pfnGet, S pfnSet, DISPID id, const std::string& strType,
              const std::string& strIndex) {
        Check(pszName, pfnGet, id, "get", strType, strIndex);
        Check(pszName, pfnSet, id, "put", "", strIndex + " " + strType);
    }

    int m_nMembers = 0;

private:
    template <class R>
    void ExpectGiven(DISPID id, const std::function<R()>& call) {
        const auto given = [&](const COleVariant& value) -> R {
            m_class.m_values[id] = value;
            return call();
        };
        COleVariant object;
        object.vt = std::is_same_v<R, LPUNKNOWN> ? VT_UNKNOWN : VT_DISPATCH;
        object.punkVal = &m_object;
        m_object.AddRef();
        if constexpr (std::is_same_v<R, short>) {
            EXPECT_EQ(given(COleVariant(21L)), 21);
            EXPECT_THROW(given(COleVariant(70000L)), CException*) << "more than 16 bits";
        } else if constexpr (std::is_same_v<R, long>) {
            EXPECT_EQ(given(COleVariant(70000L)), 70000);
        } else if constexpr (std::is_same_v<R, float>) {
            EXPECT_EQ(given(COleVariant("2.5")), 2.5F);
        } else if constexpr (std::is_same_v<R, CString>) {
            EXPECT_EQ(given(COleVariant("given")), "given");
        } else if constexpr (std::is_same_v<R, BOOL>) {
            EXPECT_EQ(given(COleVariant(5L)), TRUE);
        } else if constexpr (std::is_pointer_v<R>) {
            const R pGiven = given(object);
            EXPECT_EQ(static_cast<LPUNKNOWN>(pGiven), static_cast<LPUNKNOWN>(&m_object));
            pGiven->Release();
        } else {
            EXPECT_EQ(given(object).m_lpDispatch, &m_object);
        }
    }

    template <class R>
    static bool IsNothing(const R& value) {
        if constexpr (std::is_same_v<R, CString>) {
            return value.IsEmpty() != FALSE;
        } else if constexpr (std::is_base_of_v<COleDispatchDriver, R>) {
            return value.m_lpDispatch == nullptr;
        } else {
            return value == R{};
        }
    }

    // Inside of each call: what is seen, before it is written to.
    HRESULT LookAt(const std::string& strStep) {
        if (strStep.substr(0, 7) != "invoke ") {
            return S_OK;
        }
        const DispatchCall& call = m_class.m_calls.back();
        m_strSeen = call.Text();
        for (const VARIANT& arg : call.args) {
            if (arg.vt == (VT_BOOL | VT_BYREF)) {
                *arg.pboolVal = VARIANT_FALSE;
            } else if ((arg.vt & VT_BYREF) != 0) {
                *arg.piVal += 1;
            }
        }
        return S_OK;
    }

    FakeControlClass m_class;
    std::string m_strSeen;
    RecordingParent m_parent;
    RecordingDispatch m_object;
    W m_wrapper;
    W m_bare;
};

constexpr CLSID kFlexGrid = {
    0x6262D3A0, 0x531B, 0x11CF, {0x91, 0xF6, 0xC2, 0x86, 0x3C, 0x38, 0x5E, 0x30}};
constexpr CLSID kText = {
    0xCDF3B180, 0xD408, 0x11CE, {0xAE, 0x2C, 0x00, 0x80, 0xC7, 0x86, 0xE3, 0x7D}};
constexpr CLSID kTab = {
    0x48932A4F, 0x981F, 0x101B, {0xA7, 0xFB, 0x4A, 0x79, 0x24, 0x2F, 0xD9, 0x7B}};

}  // namespace

// Properties with both directions, to be read alone, to be written alone, setters of references,
// and methods: name, id, what it is or gives, and indices or parameters.
#define P(name, id, type, ...) \
    members.Pair(#name, &Wrapper::Get##name, &Wrapper::Set##name, id, #type, #__VA_ARGS__)
#define R(name, id, type, ...) \
    members.Check("Get" #name, &Wrapper::Get##name, id, "get", #type, #__VA_ARGS__)
#define W(name, id, type, ...) \
    members.Check("Set" #name, &Wrapper::Set##name, id, "put", "", #__VA_ARGS__ " " #type)
#define REF(name, id, type) members.Check(#name, &Wrapper::Set##name, id, "putref", "", #type)
#define NOTHING
#define M(name, id, type, ...) CHECK_METHOD(name, id, type, #__VA_ARGS__)
#define CHECK_METHOD(name, id, type, types) \
    members.Check(#name, &Wrapper::name, id, "call", TEXT_OF(type), types)
#define TEXT_OF(type) #type

// A list, several to a line.
// clang-format off

TEST(WrapperMembers, FlexGrid) {
    using Wrapper = CFlexGrid;
    Members<Wrapper> members(kFlexGrid);
    P(RightToLeft, -611, BOOL); M(Refresh, -550, NOTHING); P(Appearance, -520, I4);
    R(HWnd, -515, I4); P(Enabled, -514, BOOL); P(ForeColor, -513, I4); R(Font, -512, FONT);
    REF(RefFont, -512, DISPATCH); P(FillStyle, -511, I4); P(BorderStyle, -504, I4);
    P(BackColor, -501, I4); P(Text, 0, BSTR); R(Version, 1, I2); P(FormatString, 2, BSTR);
    P(Rows, 4, I4); P(Cols, 5, I4); P(FixedRows, 6, I4); P(FixedCols, 7, I4); P(TopRow, 8, I4);
    P(LeftCol, 9, I4); P(Row, 10, I4); P(Col, 11, I4); P(RowSel, 12, I4); P(ColSel, 13, I4);
    P(BackColorFixed, 14, I4); P(ForeColorFixed, 15, I4); P(BackColorSel, 16, I4);
    P(ForeColorSel, 17, I4); P(BackColorBkg, 18, I4); P(WordWrap, 19, BOOL); P(TextStyle, 20, I4);
    P(TextStyleFixed, 21, I4); P(ScrollTrack, 22, BOOL); P(FocusRect, 23, I4); P(HighLight, 24, I4);
    P(Redraw, 25, BOOL); P(ScrollBars, 26, I4); R(MouseRow, 27, I4); R(MouseCol, 28, I4);
    R(CellLeft, 29, I4); R(CellTop, 30, I4); R(CellWidth, 31, I4); R(CellHeight, 32, I4);
    P(RowHeightMin, 33, I4); P(GridLines, 34, I4); P(GridLinesFixed, 35, I4); P(GridColor, 36, I4);
    P(GridColorFixed, 37, I4); P(CellBackColor, 38, I4); P(CellForeColor, 39, I4);
    P(CellAlignment, 40, I2); P(CellTextStyle, 41, I4); R(CellPicture, 42, PICTURE);
    REF(RefCellPicture, 42, DISPATCH); P(CellPictureAlignment, 43, I2); P(Clip, 45, BSTR);
    W(Sort, 46, I2); P(SelectionMode, 47, I4); P(MergeCells, 48, I4); R(Picture, 49, PICTURE);
    P(PictureType, 50, I4); P(AllowBigSelection, 51, BOOL); P(AllowUserResizing, 52, I4);
    P(MousePointer, 53, I4); R(MouseIcon, 54, PICTURE); REF(RefMouseIcon, 54, DISPATCH);
    P(TextArray, 55, BSTR, I4); P(ColAlignment, 56, I2, I4); P(ColWidth, 57, I4, I4);
    P(RowHeight, 58, I4, I4); P(MergeRow, 59, BOOL, I4); P(MergeCol, 60, BOOL, I4);
    W(RowPosition, 61, I4, I4); W(ColPosition, 62, I4, I4); P(RowData, 63, I4, I4);
    P(ColData, 64, I4, I4); P(TextMatrix, 65, BSTR, I4, I4); M(AddItem, 66, NOTHING, BSTR, VARIANT);
    M(RemoveItem, 67, NOTHING, I4); M(Clear, 68, NOTHING); P(DataSource, 76, DISPATCH);
    P(CellFontName, 77, BSTR); P(CellFontSize, 78, R4); P(CellFontBold, 79, BOOL);
    P(CellFontItalic, 80, BOOL); P(CellFontUnderline, 81, BOOL); P(CellFontStrikeThrough, 82, BOOL);
    P(CellFontWidth, 83, R4); P(FontWidth, 84, R4); R(RowIsVisible, 85, BOOL, I4);
    R(ColIsVisible, 86, BOOL, I4); R(RowPos, 87, I4, I4); R(ColPos, 88, I4, I4);
    P(GridLineWidth, 89, I2); P(FixedAlignment, 90, I2, I4); P(OLEDropMode, 1551, I4);
    M(OLEDrag, 1552, NOTHING);
    EXPECT_EQ(members.m_nMembers, 167);
}

TEST(WrapperMembers, Text) {
    using Wrapper = CfpText;
    Members<Wrapper> members(kText);
    M(AboutBox, -552, NOTHING); P(HWnd, -515, I4); P(Enabled, -514, BOOL); P(Font, -512, FONT);
    P(FontName, 1, BSTR); P(FontBold, 2, BOOL); P(FontItalic, 3, BOOL); P(FontStrikethru, 4, BOOL);
    P(FontUnderline, 5, BOOL); P(FontSize, 6, R4); P(BackColor, 7, I4); P(ForeColor, 8, I4);
    P(ThreeDInsideStyle, 9, I4); P(ThreeDInsideHighlightColor, 10, I4);
    P(ThreeDInsideShadowColor, 11, I4); P(ThreeDInsideWidth, 12, I2); P(ThreeDOutsideStyle, 13, I4);
    P(ThreeDOutsideHighlightColor, 14, I4); P(ThreeDOutsideShadowColor, 15, I4);
    P(ThreeDOutsideWidth, 16, I2); P(ThreeDFrameWidth, 17, I2); P(BorderStyle, 18, I4);
    P(BorderColor, 19, I4); P(BorderWidth, 20, I2); P(ButtonDisable, 21, BOOL);
    P(ButtonHide, 22, BOOL); P(ButtonIncrement, 23, I2); P(ButtonIndex, 24, I2);
    P(ButtonMin, 25, I2); P(ButtonMax, 26, I2); P(ButtonStyle, 27, I4); P(ButtonWidth, 28, I2);
    P(ButtonWrap, 29, BOOL); P(OnFocusInvert3D, 30, BOOL); P(OnFocusShadow, 31, BOOL);
    P(DropShadowColor, 32, I4); P(DropShadowWidth, 33, I2); P(ThreeDText, 34, I4);
    P(ThreeDTextHighlightColor, 35, I4); P(ThreeDTextShadowColor, 36, I4);
    P(ThreeDTextOffset, 37, I2); P(Action, 38, I2); P(AlignTextH, 39, I4); P(AlignTextV, 40, I4);
    P(AllowNull, 41, BOOL); P(NoSpecialKeys, 42, I4); P(AutoAdvance, 43, BOOL);
    P(AutoBeep, 44, BOOL); P(CaretInsert, 45, I4); P(CaretOverWrite, 46, I4);
    P(CharPositionLeft, 47, I4); P(CharPositionRight, 48, I4); P(CurrentPosition, 49, I4);
    P(UserEntry, 50, I4); P(HideSelection, 51, BOOL); P(InvalidColor, 52, I4);
    P(InvalidOption, 53, I4); P(IsNull, 54, BOOL); P(IsValid, 55, BOOL); P(MarginLeft, 56, I2);
    P(MarginTop, 57, I2); P(MarginRight, 58, I2); P(MarginBottom, 59, I2); P(NullColor, 60, I4);
    P(OnFocusAlignH, 61, I4); P(OnFocusAlignV, 62, I4); P(OnFocusNoSelect, 63, BOOL);
    P(OnFocusPosition, 64, I4); P(SelLength, 65, I4); P(SelStart, 66, I4); P(SelText, 67, BSTR);
    P(ControlType, 68, I4); P(ButtonDefaultAction, 69, BOOL); P(Text, 70, BSTR);
    P(AutoCase, 71, I4); P(CharValidationText, 72, BSTR); P(MaxLength, 73, I4);
    P(MultiLine, 74, BOOL); P(PasswordChar, 75, BSTR); P(IncHoriz, 76, R4); P(Redraw, 77, BOOL);
    P(About, 78, BSTR); P(BorderGrayAreaColor, 79, I4); P(AllowModifiedFlag, 80, BOOL);
    P(NoPrefix, 81, BOOL); P(ScrollV, 82, BOOL); P(MousePointer, 83, I4); P(MouseIcon, 84, PICTURE);
    P(ThreeDOnFocusInvert, 85, BOOL); P(FpBoundVal, 86, BSTR); P(DataChanged, 87, BOOL);
    P(Appearance, 88, I4); P(BorderDropShadow, 89, I4); P(BorderDropShadowColor, 90, I4);
    P(BorderDropShadowWidth, 91, I2); P(ThreeDFrameColor, 92, I4);
    EXPECT_EQ(members.m_nMembers, 191);
}

TEST(WrapperMembers, Tab) {
    using Wrapper = CTab;
    Members<Wrapper> members(kTab);
    M(AboutBox, -552, NOTHING); M(Refresh, -550, NOTHING); P(HWnd, -515, I4);
    P(Enabled, -514, BOOL); P(Font, -512, FONT); P(BorderStyle, -504, I2); P(BackColor, 1, I4);
    P(FontBold, 2, BOOL); P(FontItalic, 3, BOOL); P(FontName, 4, BSTR); P(FontSize, 5, R4);
    P(FontUnderline, 6, BOOL); P(ForeColor, 7, I4); P(ActiveTab, 8, I2); P(About, 9, BSTR);
    P(TabHeight, 10, I4); P(TabsPerRow, 11, I2); P(TabCount, 12, I2); P(TabCaption, 13, BSTR);
    P(Tab, 14, I2); P(AlignTextH, 15, I4); P(AlignTextV, 16, I4); P(WordWrap, 17, BOOL);
    P(Orientation, 18, I4); P(FlipText, 19, BOOL); P(ThreeD, 20, BOOL);
    P(ThreeDShadowColor, 21, I4); P(ThreeDHighlightColor, 22, I4); P(ClientHeight, 23, I4);
    P(ClientLeft, 24, I4); P(ClientTop, 25, I4); P(ClientWidth, 26, I4); P(ShowFocusRect, 27, BOOL);
    P(ThreeDText, 28, I4); P(ThreeDTextOffset, 29, I2); P(ThreeDTextHighlightColor, 30, I4);
    P(ThreeDTextShadowColor, 31, I4); P(TabShape, 32, I4); P(MarginLeft, 33, I4);
    P(MarginRight, 34, I4); P(TabMaxWidth, 35, I4); P(TabState, 36, I2); P(ApplyTo, 37, I4);
    P(ActiveTabBold, 38, BOOL); P(GrayAreaColor, 39, I4); P(OutlineColor, 40, I4);
    P(TabPicture, 41, PICTURE); P(AlignPictureV, 42, I4); P(AlignPictureH, 43, I4);
    P(FontStrikethru, 44, BOOL); P(TabSeparator, 45, I2); P(PageColor, 46, I4);
    P(MouseOverTab, 47, I2); P(OffsetFromClientTop, 48, BOOL); P(HighestPrecedence, 49, I4);
    P(RotateText90, 50, BOOL); P(ChamferedWidth, 51, I2); P(ChamferedHeight, 52, I2);
    P(TabRowOffset, 53, I4); P(AllowPreview, 54, BOOL); P(TabID, 55, I4); P(Action, 56, I2);
    P(TabDest, 57, I2); P(AllowScroll, 58, I4); P(ShowEarMark, 59, BOOL); P(TabLeft, 60, I2);
    P(TabRight, 61, I2); P(EarMarkColorDark, 62, I4); P(EarMarkColorLight, 63, I4);
    P(EarMarkColorOutline, 64, I4); P(EarMarkHeight, 65, I4); P(Mode, 66, I4);
    P(BookMarginH, 67, I4); P(BookMarginV, 68, I4); P(BookCreaseType, 69, I4);
    P(BookCreaseColor, 70, I4); P(BookColor, 71, I4); P(BookRingColor, 72, I4);
    P(BookRingColorLight, 73, I4); P(BookRingColorOutline, 74, I4); P(BookRingLength, 75, I4);
    P(BookRingWidth, 76, I2); P(BookRingCount, 77, I2); P(BookRingGroupCount, 78, I2);
    P(BookRingMargin, 79, I2); P(BookRingOutsideMargin, 80, I4); P(BookShowMetalSpine, 81, BOOL);
    P(BookMetalSpineColor, 82, I4); P(BookMetalSpineOutlineColor, 83, I4);
    P(BookCornerType, 84, I4); P(BookCornerWidth, 85, I4); P(BookCornerHeight, 86, I4);
    P(BookShadowSize, 87, I2); P(BookShadowColor, 88, I4); P(BookGutter, 89, I4);
    P(BookRingType, 90, I4); P(BookDoubleWireMargin, 91, I2); P(BookRingArc, 92, I2);
    P(BookRingShowHole, 93, BOOL); P(BookCoverStyle, 94, I4); P(PageMax, 95, I2); P(Page, 96, I2);
    P(ActivePage, 97, I2); P(PageEarMarkType, 98, I4); P(PageFlipEffect, 99, I4);
    P(PageEarMarkColorDark, 100, I4); P(PageEarMarkColorLight, 101, I4);
    P(PageEarMarkColorOutline, 102, I4); P(PageEarMarkHeight, 103, I4); P(DataFormat, 104, BSTR);
    P(DataAutoRead, 105, BOOL); P(DataBookmark, 106, BSTR); P(PageEarMarkAlignNext, 107, I4);
    P(PageEarMarkAlignPrev, 108, I4); P(MaxScrollRows, 109, I2); P(ClientHeightPrev, 110, I4);
    P(ClientLeftPrev, 111, I4); P(ClientTopPrev, 112, I4); P(ClientWidthPrev, 113, I4);
    P(AutoSize, 114, I4); P(FireTabActivateEvent, 115, BOOL); P(DataSync, 116, I4);
    P(AutoSizeChildren, 117, I4); P(PageFlipSpeed, 118, I2); P(AutoSizeOffsetLeft, 119, I4);
    P(AutoSizeOffsetRight, 120, I4); P(AutoSizeOffsetTop, 121, I4);
    P(AutoSizeOffsetBottom, 122, I4); P(BookShowCornerGuard, 123, BOOL);
    P(BookCornerGuardWidth, 124, I4); P(BookCornerGuardLength, 125, I4);
    P(BookCornerGuardColor, 126, I4); P(BookCornerGuardColorDark, 127, I4);
    P(BookCornerGuardColorLight, 128, I4); P(BookModeType, 129, I4); P(FreezeRows, 130, BOOL);
    P(TextOrientation, 131, I4); P(TabShapeApplyTo, 132, I4); P(MousePointer, 133, I4);
    P(MouseIcon, 134, PICTURE); P(FpInternal, 135, I4); P(AutoStyle, 136, I4); P(TabTag, 137, BSTR);
    P(TabHelpContextID, 138, I2); P(ThreeDOuterDark, 139, I4); P(ThreeDOuterLight, 140, I4);
    P(ThreeDOuterWidth, 141, I2); P(ThreeDOuterWidthActive, 142, I2); P(ThreeDInnerDark, 143, I4);
    P(ThreeDInnerLight, 144, I4); P(ThreeDInnerWidth, 145, I2); P(ThreeDInnerWidthActive, 146, I2);
    P(ActiveTabInflate, 147, I2); P(ThreeDAppearance, 148, I4); P(DrawFocusRect, 149, I4);
    P(DataSource, 150, UNKNOWN); P(DataField, 151, BSTR);
    M(TabAssignChild, 1000, NOTHING, DISPATCH, I2, I4, I4);
    M(TabAssignChildToPage, 1001, NOTHING, DISPATCH, I2, I2, I4, I4);
    M(TabGetChildEnabled, 1002, BOOL, DISPATCH, BOOL*);
    M(TabSetChildEnabled, 1003, NOTHING, DISPATCH, BOOL);
    M(TabGetChildPos, 1004, BOOL, DISPATCH, I4*, I4*);
    M(TabSetChildPos, 1005, NOTHING, DISPATCH, I4, I4);
    M(TabGetChildSize, 1006, BOOL, DISPATCH, I4*, I4*);
    M(TabSetChildSize, 1007, NOTHING, DISPATCH, I4, I4); M(TabRemoveChild, 1008, NOTHING, DISPATCH);
    M(TabGetCurrentPages, 1009, NOTHING, I2*, I2*, I2*, I2*);
    M(TabSetActiveTabPage, 1010, BOOL, I2, I2);
    EXPECT_EQ(members.m_nMembers, 323);
}
// clang-format on
