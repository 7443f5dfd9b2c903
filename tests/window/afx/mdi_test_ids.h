// Resources of the tests of programs for several documents.
#pragma once

#define IDR_MDI_MAIN 3201
#define IDR_MDI_NOTE 3202
#define IDR_MDI_PLAN 3203
#define ID_MDI_COMMAND 3211
