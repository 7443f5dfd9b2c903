// Resources of the tab windows' tests.
#pragma once

#define IDD_TAB_HOST 2851
#define IDD_TAB_PAGE 2852
#define IDD_TAB_BROKEN 2853
#define IDR_TAB_FRAME 2854
#define IDC_TABS 2855
#define IDC_PAGE_EDIT 2856
#define IDC_PAGE_BUTTON 2857
#define IDC_BEFORE 2858
#define IDC_BEHIND 2859
#define ID_TAB_COMMAND 2860
