// The steps of a wizard, in the order in which they were added. Steps are never removed, so indices
// stay what they are.

#pragma once

#include "base/multi_byte.h"
#include "containers/wizard_records.h"

#include <cstddef>
#include <vector>

namespace qv {

inline constexpr std::size_t kStepTitleBytes = 30;

using WizardSteps = std::vector<_QVWIZSTEP_INFO>;

// Appends a step that was not visited, and gives its index. Of the title as much is kept as fits in
// whole characters. Throws std::bad_alloc, and nothing is appended then.
int AddStep(WizardSteps& steps, unsigned nID, const char* pszTitle, const MultiByte& text);

// The first step with that id, or -1.
int FindStep(const WizardSteps& steps, unsigned nID);

// An empty record for an index out of range.
const _QVWIZSTEP_INFO& StepAt(const WizardSteps& steps, int nStep);

// Does nothing for an index out of range.
void SetStepState(WizardSteps& steps, int nStep, WizStepState eState);

}  // namespace qv
