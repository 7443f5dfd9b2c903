// A wizard's steps: any operations at any index, titles of any bytes, and the diagram of the
// result.

#include "containers/core/wizard_diagram.h"
#include "fuzz_input.h"
#include "fuzz_text.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    qv::WizardSteps steps;
    while (!input.AtEnd()) {
        const int n = static_cast<int>(input.Byte() % 32) - 8;
        if (input.Byte() % 2 != 0) {
            const std::string strTitle = input.Text() + input.Text();
            const std::size_t nKept = text.PrefixBytes(strTitle.c_str(), qv::kStepTitleBytes);
            const int nStep = qv::AddStep(steps, input.Byte() % 8, strTitle.c_str(), text);
            FUZZ_CHECK(qv::StepAt(steps, nStep).szTitle == strTitle.substr(0, nKept));
        } else {
            qv::SetStepState(steps, n, static_cast<WizStepState>(input.Byte() % 4));
        }
        const int nFound = qv::FindStep(steps, static_cast<unsigned>(n));
        FUZZ_CHECK(nFound < 0 || qv::StepAt(steps, nFound).dwStepID == static_cast<unsigned>(n));
        FUZZ_CHECK(std::strlen(qv::StepAt(steps, n).szTitle) <= qv::kStepTitleBytes);

        std::size_t nRows = 0;
        qv::StepRowReader reader(steps, static_cast<unsigned>(n), input.Int());
        for (qv::StepRow row; reader.Next(row); ++nRows) {
            FUZZ_CHECK(row.pszTitle == steps[nRows].szTitle);
            FUZZ_CHECK(row.bBold == (row.eFill == qv::StepFill::Current) ||
                       steps[nRows].nState > WizStepVisited);
        }
        FUZZ_CHECK(nRows == steps.size());
    }
    return 0;
}
