// Objects, strings, exceptions, files and times.
#pragma once

#include "afx_api.h"

#include "afx_object.h"

#include "afx_string.h"

#include "afx_except.h"

#include "afx_file.h"
#include "afx_time.h"
