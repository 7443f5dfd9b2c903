// Dialogs with ActiveX controls.
#pragma once

#define IDD_HOSTING 3161
#define IDD_HOSTING_PLAIN 3162
#define IDC_HOSTED 3163
#define IDC_HOSTED_SECOND 3164
#define IDC_HOSTING_FIRST 3165
#define IDC_HOSTING_LAST 3166
