// Random input to a grid that is edited, with a parent that changes the grid while it is told: it
// leads to other cells, sets texts, deletes rows, closes the window or deletes the grid.

#include "base/platform_names.h"
#include "fuzz_input.h"
#include "support/fake_grid.h"

#include <array>
#include <memory>

namespace {

using Focus = FakeGrid::Focus;

constexpr std::array kKeys{VK_LEFT, VK_RIGHT, VK_UP,    VK_DOWN,   VK_HOME,
                           VK_END,  VK_NEXT,  VK_PRIOR, VK_ESCAPE, static_cast<unsigned>('X')};
constexpr int kMostRows = 12;
constexpr int kDeepest = 4;  // answers within answers

class GridRun {
public:
    GridRun(const std::uint8_t* pData, std::size_t nSize) : m_input(pData, nSize) {}

    void Run() {
        Make();
        while (!m_input.AtEnd()) {
            Step();
            if (m_pGrid == nullptr || !m_pGrid->bWindow) {
                Make();
            }
            Check();
        }
    }

private:
    int Below(int nCount) { return static_cast<int>(m_input.Byte()) % nCount; }
    qv::GridCell Current() const { return {m_pGrid->state.m_nCurRow, m_pGrid->state.m_nCurCol}; }
    qv::GridCell Cell() { return {Below(kMostRows + 2) - 1, Below(7) - 1}; }
    qv::Point AnyPoint() { return {Below(110) * 4, Below(110)}; }

    void Make() {
        m_pGrid.reset();
        m_pGrid = std::make_unique<FakeGrid>();
        m_pGrid->bHiddenLosesFocus = m_input.Byte() % 2 != 0;
        for (const GridColType nType :
             {gctStatic, gctEdit, gctEditButton, gctDropList, gctButton}) {
            m_pGrid->model.AddColumn(nType, 60);
        }
        m_pGrid->model.Column(3)->pListData = &m_choices;
        AddRows();
        m_pGrid->onTold = [this](unsigned) { Answer(); };
        m_pGrid->onHeard = [this] { Answer(); };
    }
    void AddRows() {
        for (int i = Below(kMostRows); i >= 0; --i) {
            m_pGrid->model.AddRow("name\tabc\tdef\tone\tbtn", 0);
        }
    }

    // What anybody may do at any time. The grid may be gone afterwards.
    void Act() {
        FakeGrid& g = *m_pGrid;
        switch (m_input.Byte() % 15) {
            case 0:
            case 1:
                return g.editing.GotoCell(Cell(), m_input.Byte() % 2 != 0);
            case 2:
                return g.editing.PopupList(m_choices);
            case 3:
                return g.editing.SetText(Below(4) == 0 ? Cell() : Current(),
                                         m_input.Byte() % 2 != 0 ? "two" : "answer");
            case 4:
                g.editing.DeleteRows();
                g.nTopRow = 0;
                return m_input.Byte() % 4 != 0 ? AddRows() : void();
            case 5: {
                const qv::GridCell cell = Below(2) == 0 ? Cell() : Current();
                const unsigned dwStyle = m_input.Byte() % 2 != 0 ? GCS_DISABLED : GCS_READONLY;
                return g.model.ModifyStyle(cell.nRow, cell.nCol, dwStyle, 0)
                           ? g.editing.DropEditors(cell)
                           : void();
            }
            case 6: {
                const qv::GridCell cell = Cell();
                g.model.ModifyStyle(cell.nRow, cell.nCol, 0, GCS_DISABLED | GCS_READONLY);
                return;
            }
            case 7:
                return g.MoveFocus(static_cast<Focus>(Below(3)));
            case 8:
                return g.ScrollTo(Below(kMostRows));
            case 9:
                return m_input.Byte() % 2 == 0 ? g.CloseWindow() : g.editing.SaveEditors();
            case 10:
                return m_input.Byte() % 2 == 0 ? m_pGrid.reset() : g.editing.HideEdit();
            case 11:
            case 12:
                return EditAsTyped();
            case 13:
                return g.editing.Act(Cell());
            default:
                return g.editing.ActivateCell(Current());
        }
    }
    void EditAsTyped() {
        FakeGrid& g = *m_pGrid;
        try {
            switch (Below(4)) {
                case 0:
                    return g.deeds.Paste(Cell(),
                                         {{"p", "q\tr", "two", "one"}, {"s"}, {}, {"", "t"}});
                case 1:
                    return static_cast<void>(g.deeds.Undo());
                case 2:
                    return static_cast<void>(g.deeds.Enter(Cell(), "two"));
                default:
                    return static_cast<void>(g.deeds.Redo());
            }
        } catch (const std::bad_alloc&) {
        }
    }
    void Answer() {
        if (m_nDepth < kDeepest && m_input.Byte() % 2 != 0) {
            ++m_nDepth;
            Act();
            --m_nDepth;
        }
    }
    // What the user does.
    void Step() {
        FakeGrid& g = *m_pGrid;
        switch (m_input.Byte() % 12) {
            case 0:
            case 1:
                return g.editing.Key(kKeys[m_input.Byte() % kKeys.size()]);
            case 2:
                return static_cast<void>(g.editing.SystemKey(VK_DOWN));
            case 3:
            case 4:
                m_pressed = m_input.Byte() % 2 != 0 ? AnyPoint() : m_pressed;
                return static_cast<void>(g.editing.Press(m_pressed));
            case 5:
                return g.editing.Release(m_input.Byte() % 4 != 0 ? m_pressed : AnyPoint());
            case 6:
                return g.editing.Drag(AnyPoint());
            case 7:
                return g.edit.bUp ? g.Type("typed") : void();
            case 8:
                if (g.list.bUp) {
                    g.list.nLine = Below(4) - 1;
                }
                return m_input.Byte() % 2 != 0 ? g.editing.SaveList() : void();
            case 9:
                return g.ScrollByUser(Below(kMostRows));
            case 10:
                g.bNoMemory = m_input.Byte() % 4 == 0;
                g.state.m_bReadOnly = m_input.Byte() % 4 == 0;
                return m_input.Byte() % 4 == 0 ? g.editing.CancelMode() : void();
            default:
                return Act();
        }
    }

    void Check() {
        FakeGrid& g = *m_pGrid;
        FUZZ_CHECK(g.editing.CheckInvariants() && g.model.CheckInvariants() &&
                   g.deeds.History().CheckInvariants());
        const qv::GridCell current = Current();
        if (g.edit.bUp && g.model.IsCell(current)) {
            qv::Rect rcCell;
            g.Layout().CellRect(current.nRow, current.nCol, rcCell);
            FUZZ_CHECK(g.edit.rc.left == rcCell.left + 2 && g.edit.rc.top == rcCell.top + 1);
        }
        FUZZ_CHECK(g.focus != Focus::Edit || g.edit.bUp);
    }

    FuzzInput m_input;
    CStringArray m_choices{"one", "two", "three"};
    std::unique_ptr<FakeGrid> m_pGrid;
    qv::Point m_pressed;
    int m_nDepth = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    GridRun(pData, nSize).Run();
    return 0;
}
