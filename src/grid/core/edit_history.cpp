#include "grid/core/edit_history.h"

#include <utility>

namespace qv {

namespace {

std::size_t BytesOf(const EditHistory::Step& step) {
    std::size_t nBytes = 0;
    for (const CellEdit& edit : step) {
        nBytes += edit.strBefore.size() + edit.strAfter.size();
    }
    return nBytes;
}

}  // namespace

void EditHistory::Add(GridCell cell, std::string_view before, std::string_view after) {
    CellEdit edit{cell, std::string(before), std::string(after)};
    for (; m_steps.size() > m_nDone; m_steps.pop_back()) {
        m_nBytes -= BytesOf(m_steps.back());
    }
    if (m_bStarted) {
        m_steps.back().push_back(std::move(edit));
    } else {
        Step step;
        step.push_back(std::move(edit));
        m_steps.push_back(std::move(step));
        ++m_nDone;
        m_bStarted = m_nOpen > 0;
    }
    m_nBytes += before.size() + after.size();
    TrimOldest();
}

// A step that is too large by itself is not kept: half a step would be no good.
void EditHistory::TrimOldest() {
    while (m_nDone > 0 && (m_steps.size() > kMostSteps || m_nBytes > kMostBytes)) {
        if (m_bStarted && m_nDone == 1) {
            return;  // until it is whole
        }
        m_nBytes -= BytesOf(m_steps.front());
        m_steps.pop_front();
        --m_nDone;
    }
}

void EditHistory::EndStep() {
    if (--m_nOpen == 0) {
        m_bStarted = false;
        TrimOldest();
    }
}

void EditHistory::Clear() {
    m_steps.clear();
    m_nDone = m_nBytes = 0;
    m_bStarted = false;
}

const EditHistory::Step* EditHistory::Undo() {
    return CanUndo() ? &m_steps[--m_nDone] : nullptr;
}

const EditHistory::Step* EditHistory::Redo() {
    return CanRedo() ? &m_steps[m_nDone++] : nullptr;
}

bool EditHistory::CheckInvariants() const {
    std::size_t nBytes = 0;
    for (const Step& step : m_steps) {
        nBytes += BytesOf(step);
        if (step.empty()) {
            return false;
        }
    }
    return nBytes == m_nBytes && m_nDone <= m_steps.size() && m_steps.size() <= kMostSteps + 1 &&
           (m_nBytes <= kMostBytes || m_bStarted) && (!m_bStarted || m_nOpen > 0);
}

}  // namespace qv
