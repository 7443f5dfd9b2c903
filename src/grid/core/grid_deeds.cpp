#include "grid/core/grid_deeds.h"

#include "base/no_memory.h"

namespace qv {

namespace {

// All that is noted for as long as it lives is one step.
class OneStep {
public:
    OneStep(const AliveToken& alive, EditHistory& history) : m_watch(alive), m_history(history) {
        m_history.BeginStep();
    }
    ~OneStep() {
        if (m_watch) {
            m_history.EndStep();
        }
    }
    OneStep(const OneStep&) = delete;
    OneStep& operator=(const OneStep&) = delete;

private:
    const AliveWatch m_watch;
    EditHistory& m_history;
};

}  // namespace

void GridDeeds::Note(bool bKeep, GridCell cell, const std::string& strBefore,
                     const std::string& strAfter) {
    if (!bKeep) {
        m_history.Clear();
    } else if (!m_bReplaying) {
        try {
            m_history.Add(cell, strBefore, strAfter);
        } catch (...) {
            ExpectNoMemory();
            m_history.Clear();
        }
    }
}

std::string GridDeeds::OnOneLine(std::string_view text) {
    std::string strLine;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool bBreak = text[i] == '\r' || text[i] == '\n' || text[i] == '\t';
        if (!(text[i] == '\n' && i > 0 && text[i - 1] == '\r')) {
            strLine += bBreak ? ' ' : text[i];
        }
    }
    return strLine;
}

void GridDeeds::Paste(GridCell first, const std::vector<SheetRow>& rows) {
    const AliveWatch watch(m_editing.Alive());
    m_editing.SaveEditors();  // what is typed is a step by itself
    if (!watch) {
        return;
    }
    {
        const OneStep step(m_editing.Alive(), m_history);
        GridCell cell = first;
        for (const SheetRow& row : rows) {
            cell.nCol = first.nCol;
            for (const std::string& strCell : row) {
                if (!m_editing.TypeInto(cell, OnOneLine(strCell).c_str())) {
                    return;
                }
                ++cell.nCol;
            }
            ++cell.nRow;
        }
    }
    m_editing.GotoCell(first, true);
}

bool GridDeeds::Enter(GridCell cell, std::string_view text) {
    const AliveWatch watch(m_editing.Alive());
    m_editing.SaveEditors();
    return watch && m_editing.TypeInto(cell, OnOneLine(text).c_str());
}

bool GridDeeds::Undo() {
    const AliveWatch watch(m_editing.Alive());
    m_editing.SaveEditors();
    return watch && Replay(m_history.Undo(), true);
}

bool GridDeeds::Redo() {
    const AliveWatch watch(m_editing.Alive());
    m_editing.SaveEditors();
    return watch && Replay(m_history.Redo(), false);
}

// Of a copy: the parent, being told, may make the next edit.
bool GridDeeds::Replay(const EditHistory::Step* pStep, bool bBack) {
    if (pStep == nullptr) {
        m_editing.ShowCell(m_editing.CurrentCell());  // its edit was closed
        return false;
    }
    const EditHistory::Step step = *pStep;
    {
        const SetWhileAlive<bool> replaying(m_editing.Alive(), m_bReplaying, true);
        for (std::size_t i = 0; i < step.size(); ++i) {
            const CellEdit& edit = bBack ? step[step.size() - 1 - i] : step[i];
            const std::string& strText = bBack ? edit.strBefore : edit.strAfter;
            if (!m_editing.TypeInto(edit.cell, strText.c_str())) {
                return true;
            }
        }
    }
    m_editing.ShowCell(step.front().cell);
    return true;
}

}  // namespace qv
