#include "containers/core/wizard_diagram.h"

namespace qv {

namespace {

constexpr int kMargin = 8;  // around the diagram
constexpr int kBox = 16;    // a box's width and height
constexpr int kPitch = 32;  // from box to box
constexpr int kIndent = 16;
constexpr int kReach = 8;  // of a line beyond a box; half of what lies between two boxes
constexpr int kTitleGap = 8;
constexpr int kTitleGapAtMargin = 16;  // the ring passes between box and title

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

    const int nLeft = bAtMargin ? kMargin : kMargin + kIndent;
    const int nRight = nLeft + kBox;
    const int nTop = kMargin + kPitch * static_cast<int>(m_nNext);
    const int nBottom = nTop + kBox;
    row.pszTitle = step.szTitle;
    row.rcBox = {nLeft, nTop, nRight, nBottom};
    row.rcTitle = {nRight + (bAtMargin ? kTitleGapAtMargin : kTitleGap), nTop,
                   m_nPanelRight - kMargin, nBottom};
    row.eFill = m_eFill = FillOf(step);
    row.bBold = step.dwStepID == m_nCurrentID;

    const int nMidX = (nLeft + nRight) / 2;
    const int nMidY = (nTop + nBottom) / 2;
    const int nRing = nRight + kReach;
    const StepPolyline above{{{{nMidX, nTop - kReach}, {nMidX, nTop}}}, 2};
    const StepPolyline below{{{{nMidX, nBottom}, {nMidX, nBottom + kReach}}}, 2};
    if (bFirst) {
        row.lines = {below, {{{{nRight, nMidY}, {nRing, nMidY}, {nRing, nBottom + kReach}}}, 3}};
    } else if (bLast) {
        const StepPolyline trunk{{{{nMidX, kMargin + kBox}, {nMidX, nTop}}}, 2};
        row.lines = {trunk, {{{{nRing, nTop - kReach}, {nRing, nMidY}, {nRight, nMidY}}}, 3}};
    } else {
        row.lines = {above, below};
    }
    ++m_nNext;
    return true;
}

int StepAtY(int y, std::size_t nSteps) {
    const int nStep = y >= kMargin ? (y - kMargin) / kPitch : -1;
    return nStep >= 0 && static_cast<std::size_t>(nStep) < nSteps ? nStep : -1;
}

}  // namespace qv
