// What the virtual printer tells its driver about itself.
#pragma once

/// A printer description: A4 and Letter with a margin of 18 points, colour, 600 dpi.
extern const char kReportPpd[];
