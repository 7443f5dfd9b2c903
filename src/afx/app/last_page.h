// Internal to the framework.
#pragma once

#include "afx/values/api.h"

/// The last page of a job that does not know it.
constexpr UINT kAfxUnknownLastPage = 0xFFFF;
