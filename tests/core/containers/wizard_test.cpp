// The steps of a wizard, and the diagram that is drawn of them.
#include "containers/core/wizard_diagram.h"
#include "support/double_byte.h"

#include <gtest/gtest.h>
#include <string>

namespace {

TEST(WizardSteps, TitlesAreCutBetweenCharactersAtThirtyBytes) {
    for (const std::size_t nBefore : {28u, 29u}) {
        qv::WizardSteps steps;
        const std::string strBefore(nBefore, 'x');
        qv::AddStep(steps, 7, (strBefore + "\x83\x5C!").c_str(), DoubleByte());
        std::string strField = strBefore + (nBefore == 28 ? "\x83\x5C" : "");
        strField.resize(sizeof steps[0].szTitle);
        EXPECT_EQ(std::string(steps[0].szTitle, strField.size()), strField);
    }
}

// Of each step its state or C where it is current; of each row "fill:box title line line".
std::vector<std::string> Rows(std::string_view states, int nUnit = qv::kStepUnit) {
    qv::WizardSteps steps;
    for (const char c : states) {
        const int nStep = qv::AddStep(steps, c == 'C', "", {});
        qv::SetStepState(steps, nStep, static_cast<WizStepState>(c == 'C' ? 0 : c - '0'));
    }
    std::vector<std::string> rows;
    qv::StepRowReader reader(steps, 1, 25 * nUnit, nUnit);
    for (qv::StepRow row; reader.Next(row);) {
        std::string& str = rows.emplace_back(1, "-CLVN"[static_cast<int>(row.eFill)]);
        str += row.bBold ? "b:" : ":";
        for (const qv::Rect& rc : {row.rcBox, row.rcTitle}) {
            for (const int n : {rc.left, rc.top, rc.right, rc.bottom}) {
                str += std::to_string(n) + ' ';
            }
        }
        for (const qv::StepPolyline& line : row.lines) {
            for (const qv::Point pt : line.Points()) {
                str += std::to_string(pt.x) + ',' + std::to_string(pt.y) + ' ';
            }
        }
    }
    return rows;
}

TEST(WizardDiagram, RingAndTrunkJoinAnyNumberOfBoxes) {
    const std::string strFirst = ":8 8 24 24 40 8 192 24 16,24 16,32 24,16 32,16 32,32 ";
    EXPECT_TRUE(Rows("").empty());
    EXPECT_EQ(Rows("0"), std::vector{"L" + strFirst});
    EXPECT_EQ(Rows("C0")[0], "Cb" + strFirst);
    EXPECT_EQ(Rows("C0")[1], "L:8 40 24 56 40 40 192 56 16,24 16,40 32,32 32,48 24,48 ");
    EXPECT_EQ(Rows("0C0")[1], "Cb:24 40 40 56 48 40 192 56 32,32 32,40 32,56 32,64 ");
    EXPECT_EQ(Rows("0000010")[5], "V:24 168 40 184 48 168 192 184 32,160 32,168 32,184 32,192 ");
    EXPECT_EQ(Rows("000000C")[6],
              "Cb:8 200 24 216 40 200 192 216 16,24 16,200 32,192 32,208 24,208 ");
}

TEST(WizardDiagram, AStepIsFoundByItsHeight) {
    for (const auto& [y, nStep] : {std::pair{7, -1}, {8, 0}, {39, 0}, {40, 1}, {71, 1}, {72, -1}}) {
        EXPECT_EQ(qv::StepAtY(y, 2), nStep) << y;
        EXPECT_EQ(qv::StepAtY(2 * y, 2, 16), nStep) << y;
    }
}

// Whatever the font, its titles are not cut below, and all measures grow alike.
TEST(WizardDiagram, AUnitIsHalfATitleAndNeverLessThanEightPixels) {
    for (const auto& [nHeight, nUnit] : {std::pair{0, 8}, {16, 8}, {17, 9}, {26, 13}, {27, 14}}) {
        EXPECT_EQ(qv::StepUnitFor(nHeight), nUnit) << nHeight;
    }
    EXPECT_EQ(Rows("000000C", 16)[6],
              "Cb:16 400 48 432 80 400 384 432 32,48 32,400 64,384 64,416 48,416 ");
}

TEST(WizardDiagram, AnOddStateGoesWithTheRowBefore) {
    std::string strFills;
    for (const std::string& strRow : Rows("901C990")) {
        strFills += strRow[0];
    }
    EXPECT_EQ(strFills, "-NVCCCL");
}

}  // namespace
