// Objects, strings, exceptions, files and times.
#pragma once

#define __AFX_H__

#include "afx/objects/archive.h"
#include "afx/objects/dump.h"
#include "afx/objects/except.h"
#include "afx/objects/file.h"
#include "afx/objects/file_find.h"
#include "afx/objects/object.h"
#include "afx/values/api.h"
#include "afx/values/string.h"
#include "afx/values/time.h"
