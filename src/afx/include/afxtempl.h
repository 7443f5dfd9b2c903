// Collection templates: arrays, lists and maps of any type.
#pragma once

#define __AFXTEMPL_H__

#include "afx/collections/array.h"
#include "afx/collections/list.h"
#include "afx/collections/map.h"
#include "afx/collections/typed_ptr.h"

#include <afx.h>
