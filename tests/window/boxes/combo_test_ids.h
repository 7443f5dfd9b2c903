// Resources of the combo boxes' tests.
#pragma once

#define IDD_COMBOS 2401
#define IDC_COMBO_LIST 2402
#define IDC_COMBO_SIMPLE 2403
#define IDC_COMBO_EDIT 2404
