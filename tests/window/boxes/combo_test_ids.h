// Resources of the combo boxes' tests.
#pragma once

#define IDD_COMBOS 2451
#define IDC_COMBO_LIST 2452
#define IDC_COMBO_SIMPLE 2453
#define IDC_COMBO_EDIT 2454
