#pragma once

#define IDD_SECOND 3001
#define IDC_SECOND_EDIT 3002
#define IDS_SECOND 3003
