// CDialogEx, the dialog with a background.
#pragma once

#define __AFXDIALOGEX_H__

#include "afx/dialogs/dialog_ex.h"

#include <afxwin.h>
