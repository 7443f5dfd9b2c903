// Resources of the buttons' tests.
#pragma once

#define IDD_BUTTONS 2701
#define IDC_BUTTON 2702
#define IDC_EDIT 2703
#define IDC_LINES 2704
#define IDC_MARK 2705
