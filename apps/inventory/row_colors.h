// Colours on screen of rows that mean something. On a desktop of high contrast, or a dark one, they
// are the system's own.

#pragma once

#include "QVControls.h"

// No colour: that of windows behind a text.
constexpr COLORREF kWindowBack = CLR_INVALID;

constexpr QVSTYLE kTroubleColors{RGB(176, 0, 0), RGB(255, 232, 224)};
constexpr QVSTYLE kRequiredColors{RGB(0, 0, 144), kWindowBack};
constexpr QVSTYLE kDetailColors{RGB(96, 96, 96), kWindowBack};

// What a style is shown in just now.
QVSTYLE ColorsOnScreen(const QVSTYLE& wished);

// A style of a table in the colours of the moment: nStyle, or a new one behind the others where
// that is not above 0. To be done again when the system's colours have changed.
void ShowStyle(QVStyleTable& table, int& nStyle, const QVSTYLE& wished);
