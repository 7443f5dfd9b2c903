// The ready-made collections.
#pragma once

#define __AFXCOLL_H__

#include "afx/collections/ready.h"

#include <afx.h>
