// The flexible grid behind CFlexGrid: rows and columns of cells, the first of them fixed as
// headings, with a format for each cell, cells that stand together, sorting and selection.
//
// Lengths that a container sees are twips, here they are pixels. The view and the scroll bars are
// laid out when somebody looks: before a paint, an input message, or a question about what shows.
// While Redraw is off nothing is laid out, and no change makes the window paint.
//
// Handlers of events may do anything with the grid, and close it. Moves of the current cell that
// they make are told to nobody, so that a handler cannot run for ever.

#pragma once

#include "ocx/control.h"
#include "ocx/core/flex_grid_model.h"
#include "ocx/core/flex_grid_selection.h"
#include "ocx/core/flex_grid_view.h"
#include "ocx/flex_grid_members.h"
#include "ocx/spoken.h"

#include <functional>

namespace ocx {

class FlexGrid final : public Control, private SpokenParts {
public:
    FlexGrid();

    /// Events of its own, beside the stock ones (-600 to -607).
    static constexpr DISPID kSelChange = 69;
    static constexpr DISPID kRowColChange = 70;  ///< the current cell is another one
    static constexpr DISPID kEnterCell = 71;
    static constexpr DISPID kLeaveCell = 72;  ///< it is still the current one
    static constexpr DISPID kScroll = 73;
    static constexpr DISPID kCompare = 74;  ///< (I4 row, I4 row, I2* order): below 0, 0 or above

protected:
    HRESULT Call(const Member& member, const Arguments& arguments, VARIANT* pResult) override;
    void DrawControl(HDC hDC, const RECT& rect) override;
    bool OnMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT& lResult) override;
    void OnStored(const Member& member) override;
    void OnFontChanged() override;
    void OnAmbientChanged(DISPID id) override;
    void Reset() override;
    void Collect(std::vector<Record>& records) override;
    bool WantsKey(const MSG& msg) override;

private:
    class Painter;

    ~FlexGrid() override = default;

    // Members (flex_grid.cpp, flex_grid_lines.cpp, flex_grid_cell.cpp)
    HRESULT CallCount(const Member& member, const Arguments& arguments, VARIANT* pResult);
    HRESULT CallCursor(const Member& member, const Arguments& arguments, VARIANT* pResult);
    HRESULT CallLine(const Member& member, const Arguments& arguments, VARIANT* pResult);
    HRESULT CallPlace(const Member& member, const Arguments& arguments, VARIANT* pResult);
    HRESULT CallCell(const Member& member, const Arguments& arguments, VARIANT* pResult);
    HRESULT CallCellFont(const Member& member, const Arguments& arguments, VARIANT* pResult);
    void PutLine(DISPID id, LONG nLine, const Arguments& arguments);
    void PutSize(qv::FlexGridAxis& axis, LONG nLine, LONG nTwips, LONG nPerInch);
    void PutText(int nRow, int nCol, std::wstring_view text);
    void PutCursor(DISPID id, LONG n);
    void PutFormatString(std::wstring_view format);
    void AddItem(const Arguments& arguments);
    void Sort(short nKind);
    /// In the formats of the current cell, or of all that are selected.
    void SetFormats(const std::function<void(qv::FlexGridFormat&)>& set);
    qv::FlexGridRange Targets() const;

    void GivePicture(VARIANT* pResult);

    // State
    /// Lengths are known behind it: the font says how high a row is.
    qv::FlexGridModel& Model();
    qv::FlexGridSelector Selector() const;
    /// Something about rows, columns or looks changed.
    void Changed();
    void CellChanged(int nRow, int nCol);
    void EnsureLayout();
    void ShowBars();
    void SetBarRanges();
    void UpdateEdges();
    /// Moves the selection and tells of it.
    void Select(qv::FlexGridSelection next, bool bShow);
    bool ScrollTo(int nTopRow, int nLeftCol);

    // What a screen reader is told (flex_grid_spoken.cpp): cells, row by row
    Spoken Say(LONG nPart) override;
    LONG PartCount() override;
    bool PartRect(LONG nPart, RECT& rect) override;
    LONG PartAt(POINT pt) override;
    LONG FocusedPart() override;
    LONG NextSelected(LONG nPart) override;
    LONG PartBeside(LONG nPart, LONG nDirection) override;
    bool SelectPart(LONG nPart) override;
    LONG PartOf(int nRow, int nCol) const;
    qv::Point CellOf(LONG nPart) const;
    void TellSelection(bool bCursor, bool bSpread);

    // Input (flex_grid_input.cpp)
    void OnPress(POINT pt, bool bShift);
    void OnMove(POINT pt);
    void OnRelease();
    void DragTo(POINT pt, bool bScroll);
    void OnKey(UINT vk);
    void OnWheel(short nDelta);
    void OnScrollBar(int nBar, UINT nCode);
    bool OnCursor();
    /// The row or column whose end the point drags: at most one of both is not -1.
    qv::Point ResizedAt(POINT pt);
    /// Where the mouse is, in the client area's coordinates.
    POINT MousePoint() const;

    qv::FlexGridModel m_model;
    qv::FlexGridView m_view{m_model};
    qv::FlexGridSelection m_selection{1, 1, 1, 1};
    unsigned m_nChanges = 0;  // of rows and their order, for who tells in between
    bool m_bNeedsMetrics = true;
    bool m_bNeedsLayout = true;
    bool m_bLayingOut = false;
    bool m_bTellingCursor = false;
    bool m_bTellingScroll = false;
    bool m_bReorderDue = false;  ///< a screen reader is told with the next layout
    SpokenControl m_spoken{*this, *this};

    qv::FlexGridDrag m_drag = qv::FlexGridDrag::None;
    int m_nSizedRow = -1;  // dragged by its end
    int m_nSizedCol = -1;
    int m_nWheel = 0;  // of a notch, left over
};

/// Throws what tells the caller of an error.
void Check(qv::FlexGridError error);

/// Strings of the platform as those of core, and back: both are UTF-16.
inline std::u16string_view ToCore(std::wstring_view text) {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}
inline std::wstring_view FromCore(std::u16string_view text) {
    return {reinterpret_cast<const wchar_t*>(text.data()), text.size()};
}

}  // namespace ocx
