#pragma once

#define IDD_SECOND 3001
#define IDC_SECOND_EDIT 3002
#define IDS_SECOND 3003
#define IDS_SECOND_BESIDE 57359  // in one table with the framework's "Ready"
