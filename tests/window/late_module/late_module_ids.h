#pragma once

#define IDS_LATE 4003
