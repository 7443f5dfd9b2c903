// Resources of the buttons' tests.
#pragma once

#define IDD_BUTTONS 2401
#define IDC_BITMAP 2402
#define IDC_MENU 2403
#define IDC_EDIT 2404
#define IDC_LINES 2405
#define IDC_CHOICES 2406
#define IDC_MARK 2407
#define IDS_TIP 2410
