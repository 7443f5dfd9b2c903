// The steps of a wizard, and the diagram that is drawn of them.
#include "containers/core/wizard_diagram.h"
#include "support/double_byte.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>

namespace {

TEST(WizardSteps, TitlesAreCutBetweenCharactersAtThirtyBytes) {
    const std::string str29(29, 'x');
    const struct {
        qv::MultiByte text;
        std::string strTitle;
        std::size_t nBytes;
    } kCases[] = {
        {qv::MultiByte(), str29 + "\xE4\xF6", 30},
        {DoubleByte(), str29 + "\x83\x5C", 29},
        {DoubleByte(), str29.substr(1) + "\x83\x5C!", 30},
        {qv::MultiByte::Utf8(), str29.substr(2) + "\xE2\x82\xAC\xC3\xA4", 30},
        {qv::MultiByte::Utf8(), str29.substr(1) + "\xE2\x82\xAC", 28},
        {qv::MultiByte(), "", 0},
    };
    qv::WizardSteps steps;
    for (const auto& [text, strTitle, nBytes] : kCases) {
        const int nStep = qv::AddStep(steps, 7, strTitle.c_str(), text);
        const std::string strField(qv::StepAt(steps, nStep).szTitle, 32);
        EXPECT_EQ(strField, strTitle.substr(0, nBytes) + std::string(32 - nBytes, '\0'));
    }
}

TEST(WizardSteps, TheFirstOfAnIdIsFoundAndNothingIsTouchedOutOfRange) {
    qv::WizardSteps steps;
    for (const unsigned nID : {5u, 0xFFFFFFFFu, 5u}) {
        qv::AddStep(steps, nID, "t", {});
    }
    EXPECT_EQ(qv::FindStep(steps, 5), 0);
    EXPECT_EQ(qv::FindStep(steps, 0xFFFFFFFF), 1);
    EXPECT_EQ(qv::FindStep(steps, 6), -1);
    for (const int nStep : {-1, 3, INT_MIN, INT_MAX}) {
        qv::SetStepState(steps, nStep, WizStepVisited);
        EXPECT_STREQ(qv::StepAt(steps, nStep).szTitle, "");
    }
    qv::SetStepState(steps, 1, WizStepVisited);
    EXPECT_EQ(steps[0].nState + 2 * steps[1].nState + 4 * steps[2].nState, 2);
}

// "box title line line" of each row of so many steps with the ids 0, 1, ...
std::vector<std::string> Geometry(unsigned nSteps) {
    qv::WizardSteps steps;
    for (unsigned i = 0; i < nSteps; ++i) {
        qv::AddStep(steps, i, "", {});
    }
    std::vector<std::string> rows;
    qv::StepRowReader reader(steps, 99, 200);
    for (qv::StepRow row; reader.Next(row);) {
        std::string& str = rows.emplace_back();
        for (const qv::Rect& rc : {row.rcBox, row.rcTitle}) {
            for (const int n : {rc.left, rc.top, rc.right, rc.bottom}) {
                str += std::to_string(n) + ',';
            }
            str.back() = ' ';
        }
        for (const qv::StepPolyline& line : row.lines) {
            for (const qv::Point pt : line.Points()) {
                str += std::to_string(pt.x) + ',' + std::to_string(pt.y) + '-';
            }
            str.back() = ' ';
        }
    }
    return rows;
}

TEST(WizardDiagram, RingAndTrunkJoinAnyNumberOfBoxes) {
    using Rows = std::vector<std::string>;
    const std::string strFirst = "8,8,24,24 40,8,192,24 16,24-16,32 24,16-32,16-32,32 ";
    const std::string strSecond = "24,40,40,56 48,40,192,56 32,32-32,40 32,56-32,64 ";
    EXPECT_EQ(Geometry(0), Rows());
    EXPECT_EQ(Geometry(1), Rows{strFirst});
    EXPECT_EQ(Geometry(2),
              (Rows{strFirst, "8,40,24,56 40,40,192,56 16,24-16,40 32,32-32,48-24,48 "}));
    EXPECT_EQ(Geometry(3), (Rows{strFirst, strSecond,
                                 "8,72,24,88 40,72,192,88 16,24-16,72 32,64-32,80-24,80 "}));
    const Rows seven = Geometry(7);
    EXPECT_EQ(seven[5], "24,168,40,184 48,168,192,184 32,160-32,168 32,184-32,192 ");
    EXPECT_EQ(seven[6], "8,200,24,216 40,200,192,216 16,24-16,200 32,192-32,208-24,208 ");
}

TEST(WizardDiagram, TheCurrentStepThenTheLastThenTheStateChooseAndAnOddStateGoesWithTheRowBefore) {
    // Of each step its state and whether it is current; of each row its fill, current ones in bold.
    const struct {
        const char* pszSteps;
        const char* pszFills;
    } kCases[] = {
        {"0", "L"},         {"C", "C"},         {"11", "VL"},   {"0C", "NC"},
        {"01C10", "NVCVL"}, {"91919", "-VVVL"}, {"C99", "CCL"}, {"0C9C90", "NCCCCL"},
    };
    for (const auto& [pszSteps, pszFills] : kCases) {
        qv::WizardSteps steps;
        for (const char* p = pszSteps; *p != 0; ++p) {
            const int nStep = qv::AddStep(steps, *p == 'C' ? 1 : 0, "", {});
            qv::SetStepState(steps, nStep, static_cast<WizStepState>(*p == 'C' ? 0 : *p - '0'));
        }
        std::string strFills;
        qv::StepRowReader reader(steps, 1, 0);
        for (qv::StepRow row; reader.Next(row);) {
            EXPECT_EQ(row.bBold, pszSteps[strFills.size()] == 'C') << pszSteps;
            strFills += "-CLVN"[static_cast<int>(row.eFill)];
        }
        EXPECT_EQ(strFills, pszFills) << pszSteps;
    }
}

}  // namespace
