// Resources of the tab views' tests; the pages' templates are those of the tab windows.
#pragma once

#define IDD_TAB_PAGE_LARGE 3105
#define IDR_VIEW_MENU 3106
#define IDS_VIEW_TITLE 3107
#define ID_VIEW_COMMAND 3108
