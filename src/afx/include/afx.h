// Objects, strings, exceptions, files and times.
#pragma once

#include "afx/objects/except.h"
#include "afx/objects/file.h"
#include "afx/objects/object.h"
#include "afx/values/api.h"
#include "afx/values/string.h"
#include "afx/values/time.h"
