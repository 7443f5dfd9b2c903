// The text field behind CfpText: an edit of the platform's inside frames that the control draws.
//
// From the outside inwards: a shadow at the right and the bottom, the outside edge, a plain frame,
// the inside edge, a border line, margins, and the text. Widths and margins are pixels. Appearance
// says what of it shows where nothing else was set: 1, as to begin with, the platform's sunken
// edge; 0, a border line alone.
//
// The text is the edit's while there is a window, and kept here while there is none: closing the
// control, restyling it (which may need a new edit) or activating it again loses nothing of it.

#pragma once

#include "ocx/control.h"
#include "ocx/core/field_frame.h"
#include "ocx/core/field_rules.h"
#include "ocx/spoken.h"
#include "ocx/text_field_members.h"

#include <string>
#include <string_view>

namespace ocx {

class TextField final : public Control, private SpokenParts {
public:
    TextField();

    /// Events of its own, beside the stock ones.
    static constexpr DISPID kChange = 1;

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
    /// In the edit as well.
    bool HasFocus() const override;

private:
    ~TextField() override = default;

    // Text and selection, in UTF-16 units: core's type for them, and the platform's
    static std::u16string Units(std::wstring_view text);
    static std::wstring Wide(std::u16string_view text);
    std::wstring FieldText() const;
    qv::TextRange Selection() const;
    /// Cut and in the case that the properties say. Tells Change if it is another text.
    void SetFieldText(std::wstring_view text);
    void Select(LONG nStart, LONG nLength);
    /// As if typed, with undo, but whether users may type or not.
    void ReplaceSelection(std::wstring_view text);
    void TellChange();
    HRESULT CallText(const Arguments& arguments, VARIANT* pResult);
    HRESULT CallPasswordChar(const Member& member, const Arguments& arguments);
    HRESULT CallSelection(const Member& member, const Arguments& arguments, VARIANT* pResult);
    HRESULT CallState(const Member& member, const Arguments& arguments, VARIANT* pResult);

    // What a screen reader is told, of the control and of the edit alike (text_field_edit.cpp)
    Spoken Say(LONG nPart) override;
    bool PutPart(LONG nPart, std::wstring_view text) override;
    bool HasWindows() override { return false; }

    // What is typed (text_field_input.cpp)
    qv::FieldRules Rules() const;
    /// In the case that AutoCase says; chBefore stands before the text, 0 at the start.
    std::wstring InCase(std::wstring_view text, wchar_t chBefore) const;
    /// What of a text may come in over the selection, in its case.
    std::wstring Entry(std::wstring_view typed) const;
    bool IsReadOnly() const;
    bool IsStatic() const;
    bool IsNull() const;
    bool IsValid() const;
    void Refused() const;

    // The edit (text_field_edit.cpp)
    void MakeEdit();
    /// A new edit with the same text where a property asks for another style.
    void RemakeEdit();
    /// Takes over what the edit holds.
    void Remember();
    void SetUpEdit();
    void PlaceEdit();
    static LRESULT CALLBACK EditProc(HWND hEdit, UINT nMessage, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR nId, DWORD_PTR nField);
    LRESULT OnEditMessage(HWND hEdit, UINT nMessage, WPARAM wParam, LPARAM lParam);
    /// To the edit itself; what it told meanwhile is done afterwards, when it can be taken away.
    LRESULT Forward(HWND hEdit, UINT nMessage, WPARAM wParam, LPARAM lParam);
    bool OnEditKey(UINT nMessage, WPARAM wParam);
    bool Tell(UINT nMessage, WPARAM& wParam, LPARAM lParam);
    bool ClickBesideEdit(WPARAM wParam, LPARAM lParam);
    /// True: nothing is left for the edit.
    bool OnEditChar(WPARAM& wParam);
    void Paste();
    void TakeFocus();

    // Looks (text_field_paint.cpp)
    qv::FieldFrame Frame(const RECT& rect) const;
    /// Where lines of text go: all of the text's area, or the place of the one line.
    RECT LinesArea(const RECT& rect);
    int LineHeight();
    COLORREF TextColor() const;
    COLORREF BackColor() const;
    void DrawEdge(HDC hDC, const qv::Rect& rect, DISPID idStyle, DISPID idWidth, DISPID idHighlight,
                  DISPID idShadow) const;
    void DrawLines(HDC hDC, const RECT& rect);
    /// Anew, unless Redraw is off.
    void Show();

    HWND m_hEdit = nullptr;
    std::wstring m_strText;  // while there is no edit
    qv::TextRange m_selected;
    bool m_bDataChanged = false;
    Owned<HBRUSH> m_brush;  // the edit's ground, of m_crBrush
    COLORREF m_crBrush = CLR_INVALID;
    wchar_t m_chHigh = 0;         // half of a character that was typed
    int m_nForwarded = 0;         // messages that the edit is handling
    bool m_bEditChanged = false;  // it said so
    bool m_bWantsRemake = false;
    bool m_bSetting = false;      // by the program: no change of the user's
    bool m_bMovingFocus = false;  // from one edit to the next
    SpokenControl m_spoken{*this, *this};
};

}  // namespace ocx
