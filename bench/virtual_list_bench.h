// Core's part of a list over the application's own data: ordering a million rows.

#pragma once

void MeasureVirtualSort();
