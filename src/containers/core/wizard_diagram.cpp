#include "containers/core/wizard_diagram.h"

namespace qv {

namespace {

// In units.
constexpr int kMargin = 1;  // around the diagram
constexpr int kBox = 2;     // a box's width and height
constexpr int kPitch = 4;   // from box to box
constexpr int kIndent = 2;
constexpr int kReach = 1;  // of a line beyond a box; half of what lies between two boxes
constexpr int kTitleGap = 1;
constexpr int kTitleGapAtMargin = 2;  // the ring passes between box and title

}  // namespace

// Whatever a step's own state, the current one and then the last one come first. A state that is
// none of the two goes with the row before.
StepFill StepRowReader::FillOf(const _QVWIZSTEP_INFO& step) const {
    if (step.dwStepID == m_nCurrentID) {
        return StepFill::Current;
    }
    if (m_nNext + 1 == m_steps.size()) {
        return StepFill::Last;
    }
    switch (step.nState) {
        case WizStepVisited:
            return StepFill::Visited;
        case WizStepNotVisited:
            return StepFill::NotVisited;
    }
    return m_eFill;
}

bool StepRowReader::Next(StepRow& row) {
    if (m_nNext == m_steps.size()) {
        return false;
    }
    const _QVWIZSTEP_INFO& step = m_steps[m_nNext];
    const bool bFirst = m_nNext == 0;
    const bool bLast = !bFirst && m_nNext + 1 == m_steps.size();
    const bool bAtMargin = bFirst || bLast;

    const int nLeft = m_nUnit * (bAtMargin ? kMargin : kMargin + kIndent);
    const int nRight = nLeft + m_nUnit * kBox;
    const int nTop = m_nUnit * (kMargin + kPitch * static_cast<int>(m_nNext));
    const int nBottom = nTop + m_nUnit * kBox;
    const int nReach = m_nUnit * kReach;
    row.pszTitle = step.szTitle;
    row.rcBox = {nLeft, nTop, nRight, nBottom};
    row.rcTitle = {nRight + m_nUnit * (bAtMargin ? kTitleGapAtMargin : kTitleGap), nTop,
                   m_nPanelRight - m_nUnit * kMargin, nBottom};
    row.eFill = m_eFill = FillOf(step);
    row.bBold = step.dwStepID == m_nCurrentID;

    const int nMidX = (nLeft + nRight) / 2;
    const int nMidY = (nTop + nBottom) / 2;
    const int nRing = nRight + nReach;
    const StepPolyline above{{{{nMidX, nTop - nReach}, {nMidX, nTop}}}, 2};
    const StepPolyline below{{{{nMidX, nBottom}, {nMidX, nBottom + nReach}}}, 2};
    if (bFirst) {
        row.lines = {below, {{{{nRight, nMidY}, {nRing, nMidY}, {nRing, nBottom + nReach}}}, 3}};
    } else if (bLast) {
        const StepPolyline trunk{{{{nMidX, m_nUnit * (kMargin + kBox)}, {nMidX, nTop}}}, 2};
        row.lines = {trunk, {{{{nRing, nTop - nReach}, {nRing, nMidY}, {nRight, nMidY}}}, 3}};
    } else {
        row.lines = {above, below};
    }
    ++m_nNext;
    return true;
}

int StepAtY(int y, std::size_t nSteps, int nUnit) {
    const int nMargin = nUnit * kMargin;
    const int nStep = y >= nMargin ? (y - nMargin) / (nUnit * kPitch) : -1;
    return nStep >= 0 && static_cast<std::size_t>(nStep) < nSteps ? nStep : -1;
}

}  // namespace qv
