// A grid for core, without a window: its editors and the focus behave as the platform's do, and a
// parent may answer what it is told.

#pragma once

#include "grid/core/grid_deeds.h"

#include <cstring>
#include <functional>
#include <new>
#include <string>
#include <vector>

// The choices of a column, which core hands through unread.
class CStringArray : public std::vector<std::string> {
public:
    using std::vector<std::string>::vector;
};

class FakeGrid : public qv::GridHostPort {
public:
    static constexpr unsigned kButtonOrList = qv::GridEditing::kButtonOrList;
    static constexpr unsigned kListChanged = qv::GridEditing::kListChanged;
    static constexpr unsigned kEditChanged = 0x300;
    static constexpr unsigned kMoved = 0x400;  // focus or mouse, which anybody may hear of
    static constexpr int kHeight = 20;
    static constexpr int kPage = 5;
    enum class Focus { Elsewhere, Grid, Edit };

    FakeGrid() : edit(*this), editing(model, state, *this, edit, list) {}

    // The parent and everybody else that hears of things, who may delete the grid.
    std::function<void(unsigned nCode)> onTold;
    std::function<void()> onHeard;  // who listens, and may do the same
    void Tell(unsigned nCode) {
        if (nCode != kMoved) {
            strTold += nCode == kEditChanged ? "change " : std::to_string(nCode) + " ";
        }
        if (onTold) {
            const auto answer = onTold;  // which lives on where the grid does not
            answer(nCode);
        }
    }
    std::string Told() { return std::exchange(strTold, {}); }

    void MoveFocus(Focus to) {
        const Focus from = std::exchange(focus, to);
        const qv::AliveWatch watch(editing.Alive());
        if (from == to) {
            return;
        }
        if (from == Focus::Grid) {
            editing.LostFocus();
        } else if (from == Focus::Edit) {
            editing.SaveEdit();
        }
        if (watch) {
            Tell(kMoved);
        }
        if (!watch || focus != to) {
            return;
        }
        if (to == Focus::Grid) {
            editing.GotFocus();
        } else if (to == Focus::Edit && !edit.bUp) {
            MoveFocus(Focus::Grid);
        }
    }
    void Type(const char* psz) {
        edit.strText = psz;
        Tell(kEditChanged);
    }
    void CloseWindow() {
        const qv::AliveWatch watch(editing.Alive());
        editing.Closing();
        edit.bUp = false;
        if (focus == Focus::Edit) {
            MoveFocus(Focus::Grid);  // which an edit that goes hands it to
        }
        if (watch) {
            bWindow = edit.bMade = edit.bUp = list.bMade = list.bUp = false;
            focus = Focus::Elsewhere;
            editing.Closed();
        }
    }
    // As the scroll bar does, and as code does.
    void ScrollByUser(int nTop) {
        const qv::AliveWatch watch(editing.Alive());
        if (state.m_bEditing) {
            editing.SaveEditors();
        }
        if (watch) {
            ScrollTo(nTop);
        }
    }
    void ScrollTo(int nTop) {
        nTopRow = nTop;
        editing.PlaceEditors();
        editing.CloseListOutOfView();
    }

    // --- GridHostPort

    const void* Window() const override { return bWindow ? this : nullptr; }
    qv::GridLayout Layout() const override {
        return {model, {0, 0, 420, kPage * kHeight}, kHeight, nTopRow};
    }
    bool MeasureRows() override { return !bNoMemory; }
    int PageRows() const override { return kPage; }
    void ShowRow(int nRow) override {
        if (nRow < nTopRow || nRow >= nTopRow + kPage) {
            ScrollTo(nRow < nTopRow ? nRow : nRow - kPage + 1);
        }
    }
    void InvalidateAll() override {}
    void InvalidateRow(int) override {}
    void InvalidateCell(qv::GridCell) override {}
    void EraseCell(qv::GridCell) override {}
    void InvalidateButton(const qv::Rect&) override {}
    void Update() override {}
    bool HasFocus() const override { return focus == Focus::Grid; }
    void TakeFocus() override { MoveFocus(Focus::Grid); }
    bool HasMouse() const override { return bMouse; }
    void CaptureMouse() override { bMouse = true; }
    void ReleaseMouse() override {
        bMouse = false;
        Tell(kMoved);
    }
    void TellParent(unsigned nCode) override { Tell(nCode); }
    void HandleByDefault() override {
        ++nDefaults;
        Tell(kMoved);
    }
    bool SameText(const char* psz1, const char* psz2) const override {
        return std::strcmp(psz1, psz2) == 0;
    }
    void NoteEdit(qv::GridCell cell, const std::string& strBefore,
                  const std::string& strAfter) override {
        deeds.Note(true, cell, strBefore, strAfter);
    }
    void CellChanged(qv::GridCell cell, qv::CellChange what) override {
        static constexpr const char* kNames[] = {"current ", "text ", "list "};
        strHeard += kNames[static_cast<int>(what)] + std::to_string(cell.nRow) + "," +
                    std::to_string(cell.nCol) + " ";
        if (onHeard) {
            const auto answer = onHeard;
            answer();
        }
    }
    std::string Heard() { return std::exchange(strHeard, {}); }

    class Edit : public qv::GridEditPort {
    public:
        explicit Edit(FakeGrid& grid) : m_grid(grid) {}
        bool Made() const override { return bMade; }
        bool Up() const override { return bUp; }
        void MakeHidden() override {
            if (m_grid.bNoMemory) {
                throw std::bad_alloc();
            }
            bMade = true;
            Hide();
        }
        std::string Text() const override {
            if (m_grid.bNoMemory) {
                throw std::bad_alloc();
            }
            return strText;
        }
        void SetText(const char* psz) override {
            strText = psz;
            m_grid.Tell(kEditChanged);
        }
        void SelectAll() override { strSelected = "all"; }
        void PutCaretAtEnd() override { strSelected = "end"; }
        void Place(const qv::Rect& rcAt) override { rc = rcAt; }
        void Show() override { bUp = true; }
        void Hide() override {
            bUp = false;
            if (HasFocus() && m_grid.bHiddenLosesFocus) {
                m_grid.MoveFocus(Focus::Grid);
            }
        }
        bool HasFocus() const override { return m_grid.focus == Focus::Edit; }
        void TakeFocus() override { m_grid.MoveFocus(Focus::Edit); }

        bool bMade = false;
        bool bUp = false;
        std::string strText;
        std::string strSelected;
        qv::Rect rc;

    private:
        FakeGrid& m_grid;
    };

    class List : public qv::GridListPort {
    public:
        bool Made() const override { return bMade; }
        bool Up() const override { return bUp; }
        void Fill(const CStringArray& choices) override {
            bMade = true;
            bUp = false;
            lines = choices;
            nLine = -1;
        }
        int CountLines() const override { return static_cast<int>(lines.size()); }
        int SelectedLine() const override { return nLine; }
        void SelectLine(int nNew) override { nLine = nNew; }
        int FindLine(const char* psz) const override {
            for (int i = 0; i < CountLines(); ++i) {
                if (LineText(i) == psz) {
                    return i;
                }
            }
            return -1;
        }
        std::string LineText(int n) const override { return lines[static_cast<size_t>(n)]; }
        void Place(const qv::Rect& rcCell) override { rc = rcCell; }
        void Show() override { bUp = true; }
        void Hide() override { bUp = false; }

        bool bMade = false;
        bool bUp = false;
        CStringArray lines;
        int nLine = -1;
        qv::Rect rc;
    };

    qv::GridModel model;
    QVGridState state;
    Edit edit;
    List list;
    qv::GridEditing editing;
    qv::GridDeeds deeds{editing};
    Focus focus = Focus::Elsewhere;
    bool bWindow = true;
    bool bNoMemory = false;
    bool bHiddenLosesFocus = false;  // not everywhere
    bool bMouse = false;
    int nTopRow = 0;
    int nDefaults = 0;
    std::string strTold;
    std::string strHeard;  // by who listens
};
