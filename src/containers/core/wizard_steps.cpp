#include "containers/core/wizard_steps.h"

#include <algorithm>
#include <cstring>

namespace qv {

namespace {

bool IsIn(const WizardSteps& steps, int nStep) {
    return nStep >= 0 && static_cast<std::size_t>(nStep) < steps.size();
}

}  // namespace

int AddStep(WizardSteps& steps, unsigned nID, const char* pszTitle, const MultiByte& text) {
    _QVWIZSTEP_INFO step{WizStepNotVisited, nID, {}};
    static_assert(kStepTitleBytes < sizeof(step.szTitle), "a title is always terminated");
    std::memcpy(step.szTitle, pszTitle, text.PrefixBytes(pszTitle, kStepTitleBytes));
    steps.push_back(step);
    return static_cast<int>(steps.size()) - 1;
}

int FindStep(const WizardSteps& steps, unsigned nID) {
    const auto it = std::find_if(steps.begin(), steps.end(),
                                 [nID](const auto& step) { return step.dwStepID == nID; });
    return it != steps.end() ? static_cast<int>(it - steps.begin()) : -1;
}

const _QVWIZSTEP_INFO& StepAt(const WizardSteps& steps, int nStep) {
    static const _QVWIZSTEP_INFO s_none{};
    return IsIn(steps, nStep) ? steps[static_cast<std::size_t>(nStep)] : s_none;
}

void SetStepState(WizardSteps& steps, int nStep, WizStepState eState) {
    if (IsIn(steps, nStep)) {
        steps[static_cast<std::size_t>(nStep)].nState = eState;
    }
}

}  // namespace qv
