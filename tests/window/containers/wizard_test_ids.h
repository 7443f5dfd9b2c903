// Resources of the wizards' tests: pages, the first and the last in fonts of their own.
#pragma once

#define IDD_WIZ_FIRST 2951
#define IDD_WIZ_SECOND 2952
#define IDD_WIZ_LAST 2953
#define IDC_WIZ_EDIT 2961
#define IDS_WIZ_CANCEL 2971
