// The platform's versions under the name that programs include. Where names of files do not tell
// capital letters, this file stands before the platform's own.
#pragma once
#pragma GCC system_header  // include_next is not in the standard

#include_next <sdkddkver.h>
