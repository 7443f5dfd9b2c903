// Resources of the documents' tests.
#pragma once

#define IDR_SHEET 3101
#define ID_SHEET_COMMAND 3102
