#pragma once

#include "frame/dc_guards.h"
#include "frame/paint_objects.h"
