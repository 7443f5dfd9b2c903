// The diagram of a wizard's steps: a box and a title for each, joined by lines. First and last box
// stand at the margin; those between are a chain one column further in. A ring leads from the first
// box through the chain to the last one, and a trunk down the margin's column joins the two
// directly:
//
//     [0]---.    title
//      |  [1]   title
//      |   |
//      |  [2]   title
//     [3]---'    title
//
// It is measured in units: a box is two of them wide and high, and so is the space below it. A unit
// is eight pixels of the device, whatever the font, unless somebody asks for one that goes with it.

#pragma once

#include "base/geometry.h"
#include "base/platform_names.h"
#include "containers/core/wizard_steps.h"

#include <array>
#include <span>

namespace qv {

// What a box is filled with; None leaves it as it is.
enum class StepFill { None, Current, Last, Visited, NotVisited };

inline constexpr COLORREF kStepBack = 0x000000;
inline constexpr COLORREF kStepLine = 0xFFFFFF;
inline constexpr COLORREF kStepTitle = 0xFFFFFF;
// By StepFill, from Current on.
inline constexpr std::array<COLORREF, 4> kStepFills = {0x00FF00, 0x0000FF, 0x808080, 0xC0C0C0};

inline constexpr int kStepUnit = 8;

// The pixels of a unit whose boxes are as high as a title of nTextHeight pixels; never less than
// kStepUnit.
constexpr int StepUnitFor(int nTextHeight) {
    return nTextHeight > 2 * kStepUnit ? (nTextHeight + 1) / 2 : kStepUnit;
}

struct StepPolyline {
    std::array<Point, 3> points;
    std::size_t nPoints;
    std::span<const Point> Points() const { return {points.data(), nPoints}; }
};

struct StepRow {
    const char* pszTitle;
    Rect rcBox;
    Rect rcTitle;
    StepFill eFill;
    bool bBold;
    std::array<StepPolyline, 2> lines;
};

// Reads the rows from the first step on. The steps stay where they are meanwhile.
class StepRowReader {
public:
    // nPanelRight is the panel's right edge, which limits the titles.
    StepRowReader(std::span<const _QVWIZSTEP_INFO> steps, unsigned nCurrentID, int nPanelRight,
                  int nUnit = kStepUnit)
        : m_steps(steps), m_nCurrentID(nCurrentID), m_nPanelRight(nPanelRight), m_nUnit(nUnit) {}
    bool Next(StepRow& row);
    // Goes on with step nStep, as if all before it had a state.
    void Skip(std::size_t nStep) { m_nNext = nStep; }

private:
    StepFill FillOf(const _QVWIZSTEP_INFO& step) const;

    const std::span<const _QVWIZSTEP_INFO> m_steps;
    const unsigned m_nCurrentID;
    const int m_nPanelRight;
    const int m_nUnit;
    std::size_t m_nNext = 0;
    StepFill m_eFill = StepFill::None;  // of the row before
};

// The step whose row has that y coordinate, with what lies between it and the next one; -1 for none
// of nSteps.
int StepAtY(int y, std::size_t nSteps, int nUnit = kStepUnit);

}  // namespace qv
