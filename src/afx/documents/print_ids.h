// Texts of printing that have no published numbers. Read by the resource compiler as well.
#pragma once

#define QVAFX_IDS_PRINTPAGEOF 0xF1F0
#define QVAFX_IDP_PRINT_STOPPED 0xF1F1
