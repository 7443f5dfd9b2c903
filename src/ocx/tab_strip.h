// The tab strip behind CTab's class id: a row of tabs, or several, along one side of the control,
// of which one is active, and an empty page beside them that the container fills.
//
// Measures are twips, widths of edges pixels. Tabs count from 0. Properties of a single tab
// (TabCaption, TabState, TabPicture, TabTag, TabID, TabHelpContextID) go to the tab that Tab names;
// without one they read as empty and are refused.
//
// Events: 7 (short* tab, short* cancel) while the old tab is still the active one, 8 (the same)
// when the new one is; KeyDown and the other stock events.

#pragma once

#include "ocx/control.h"
#include "ocx/core/tab_set.h"
#include "ocx/core/tab_strip_layout.h"
#include "ocx/spoken.h"

#include <optional>
#include <string>
#include <vector>

namespace ocx {

class TabStrip final : public Control, private qv::TabEvents, private SpokenParts {
public:
    TabStrip();

protected:
    HRESULT Call(const Member& member, const Arguments& arguments, VARIANT* pResult) override;
    void DrawControl(HDC hDC, const RECT& rect) override;
    bool OnMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT& lResult) override;
    void OnStored(const Member& member) override;
    void OnFontChanged() override;
    void OnAmbientChanged(DISPID id) override;
    LONG DefaultNumber(const Member& member) const override;
    void Reset() override;
    void Collect(std::vector<Record>& records) override;
    bool WantsKey(const MSG& msg) override;
    std::wstring Mnemonics() override;
    void OnMnemonicKey(wchar_t ch) override;

private:
    struct Tab {
        std::wstring caption;
        std::wstring tag;
        Ref<IPicture> picture;
        LONG nId = 0;
        short nHelpContext = 0;
        SIZE content = {-1, -1};  ///< text, picture and margins, along the text and across it
    };
    struct Edges {
        int nOuter = 0;
        int nInner = 0;
        COLORREF crOuterLight = 0;
        COLORREF crOuterDark = 0;
        COLORREF crInnerLight = 0;
        COLORREF crInnerDark = 0;
    };
    /// Fonts that a paint needs beside the control's own, which they own.
    struct Fonts {
        Owned<HFONT> plain;   ///< turned, else none
        Owned<HFONT> active;  ///< bold, else none
    };
    class TextFrame;

    bool MayActivate(int nTab) override;
    void Activated(int nTab) override;

    // What a screen reader is told (tab_strip_input.cpp): part n is tab n - 1
    Spoken Say(LONG nPart) override;
    LONG PartCount() override { return m_set.Count(); }
    bool PartRect(LONG nPart, RECT& rect) override;
    LONG PartAt(POINT pt) override;
    LONG FocusedPart() override { return m_set.Active() + 1; }
    LONG NextSelected(LONG nPart) override { return nPart == 0 ? m_set.Active() + 1 : 0; }
    bool SelectPart(LONG nPart) override;
    bool DoPart(LONG nPart) override { return nPart != 0 && SelectPart(nPart); }
    void TellActive();

    // What is asked of the control
    Tab* Current();
    Tab& CurrentToChange();
    bool AnswerTab(const Member& member, const Arguments& arguments, VARIANT* pResult);
    bool AnswerFont(const Member& member, const Arguments& arguments, VARIANT* pResult);
    bool AnswerClient(const Member& member, const Arguments& arguments, VARIANT* pResult);
    void SetCount(LONG nCount);
    void SetActive(LONG nTab);
    void SetState(LONG nState);

    // Where things are
    const qv::TabStripLayout& Layout();
    qv::TabStripMeasures Measures();
    void Measure(HDC hDC, Tab& tab, int nWrap);
    int WrapWidth(const qv::TabStripMeasures& measures) const;
    void Relayout();
    void ForgetContents();
    void ShowActive();
    qv::TabSide Side() const;
    bool IsLying() const;
    bool IsTurned() const;
    bool RunsAlong() const { return IsLying() || IsTurned(); }
    int Pixels(DISPID id, bool bHorizontal) const;
    int TabUnderPointer();
    Owned<HFONT> MakeFont(bool bBold, bool bTurned);

    // Drawing
    Edges EdgesOf(bool bActive) const;
    void DrawPage(HDC hDC);
    void DrawTab(HDC hDC, int nTab, const Fonts& fonts);
    void DrawShape(HDC hDC, const RECT& rect, const Edges& edges, int nPageEdge);
    void DrawContent(HDC hDC, const RECT& rect, int nTab);
    void DrawCaption(HDC hDC, const TextFrame& frame, const RECT& place, int nTab);
    void DrawArrow(HDC hDC, bool bForward);
    void DrawFocus(HDC hDC, const RECT& rect);

    // Input
    bool OnKey(WPARAM vk);
    void OnPress(POINT pt);
    void GoTo(int nTab);
    void Scroll(int nTabs);

    qv::TabSet m_set{*this};
    std::vector<Tab> m_tabs;
    int m_nTab = 0;
    int m_nFirst = 0;
    int m_nTold = -1;  ///< the active tab that a screen reader knows
    SpokenControl m_spoken{*this, *this};
    bool m_bShowActive = false;  ///< scroll to it with the next layout
    std::optional<qv::TabStripLayout> m_layout;
    RECT m_rcLayout = {};
};

}  // namespace ocx
