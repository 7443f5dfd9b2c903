// A printer for machines without one, so that printing can be shown and tested there.
#pragma once

#include <string>

/// The name that the printer gets.
inline constexpr char kVirtualPrinterName[] = "Report";

/// Whether the system has the driver that the printer needs, wineps.drv.
bool CanMakeVirtualPrinter();

/// Makes sure that there is a default printer. Where there is none already, and the driver
/// is there, adds a colour printer of 600 dpi that writes PostScript to files. False, and
/// the reason in strError, if that fails.
bool EnsureVirtualPrinter(std::string& strError);
