// Automation: what a property costs through its wrapper, and what filling a flexible grid does.

#include "window_bench.h"

void MeasureActiveX() {}
