// Resources of the tests of property sheets.
#pragma once

#define IDD_PAGE_BIG 2901
#define IDD_PAGE_PLAIN 2902
#define IDD_PAGE_BARE 2903
#define IDD_PAGE_BROKEN 2904

#define IDS_TAB 2912
#define IDS_TITLE 2913
#define IDS_SUBTITLE 2914

#define IDC_PAGE_EDIT 2921
#define IDC_PAGE_CHECK 2922
