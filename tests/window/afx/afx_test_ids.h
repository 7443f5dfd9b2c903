// Resources of the framework's tests.
#pragma once

#define IDD_EXCHANGE 2001
#define IDD_MODAL 2002
#define IDR_FRAME 2010
#define IDB_PALETTE 2011

#define IDC_NAME 2101
#define IDC_NUMBER 2102
#define IDC_REAL 2103
#define IDC_CHECK 2104
#define IDC_RADIO_FIRST 2105
#define IDC_RADIO_SECOND 2106
#define IDC_RADIO_THIRD 2107
#define IDC_LIST 2108
#define IDC_COMBO 2109
#define IDC_SCROLL 2110

#define ID_ON_CLIENT 2201
#define ID_ON_FRAME 2202
#define ID_ON_NOBODY 2204
#define ID_SWITCHED_OFF 2205
#define ID_OTHER 2206
