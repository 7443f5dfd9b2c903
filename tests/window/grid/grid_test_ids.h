// Resources of the grid's tests.
#pragma once

#define IDD_GRID 2301
#define IDC_GRID 2302
#define IDC_BESIDE 2303
