// Resources of the tests of printing.
#pragma once

#define IDR_PRINT_FRAME 3121
