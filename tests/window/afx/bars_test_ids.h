// Numbers in bars_test.rc.
#pragma once

#define IDR_BARS 210
#define IDR_BARS_CUT 211
#define IDD_BARS_FORM 212
#define IDD_BARS_DIALOG 213
#define IDC_BARS_FIRST 1001
#define IDC_BARS_LAST 1002
#define ID_BARS_CHECK 33001
#define ID_BARS_NOBODY 33002
