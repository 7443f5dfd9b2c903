// Automation: dates, variants, the objects of other programs, and controls' events.
#pragma once

#define __AFXDISP_H__

#include "afx/ole/control_hosting.h"
#include "afx/ole/dispatch_driver.h"
#include "afx/ole/event_sink.h"
#include "afx/ole/ole_exceptions.h"
#include "afx/ole/ole_init.h"
#include "afx/ole/ole_variant.h"
#include "afx/ole/param_types.h"
#include "afx/values/ole_currency.h"
#include "afx/values/ole_date_time.h"

#include <afxwin.h>
