// CRichEditCtrl.
#pragma once

#define __AFXRICH_H__

#include <afxcmn.h>
