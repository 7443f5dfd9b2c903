// Resources of the about box's tests.
#pragma once

#define IDD_ABOUT_EXTENDED 3141
#define IDI_ABOUT_TEST 3142
