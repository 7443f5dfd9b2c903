#include "row_colors.h"

namespace {

// Dark texts need a bright window.
constexpr int kBright = 192;  // of 255

bool HasHighContrast() {
    HIGHCONTRAST contrast{};
    contrast.cbSize = sizeof(contrast);
    return ::SystemParametersInfo(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

int Brightness(COLORREF cr) {
    return (299 * GetRValue(cr) + 587 * GetGValue(cr) + 114 * GetBValue(cr)) / 1000;
}

}  // namespace

QVSTYLE ColorsOnScreen(const QVSTYLE& wished) {
    const COLORREF crWindow = ::GetSysColor(COLOR_WINDOW);
    if (HasHighContrast() || Brightness(crWindow) < kBright) {
        return {::GetSysColor(COLOR_WINDOWTEXT), crWindow};
    }
    return {wished.crText, wished.crBk == kWindowBack ? crWindow : wished.crBk};
}

void ShowStyle(QVStyleTable& table, int& nStyle, const QVSTYLE& wished) {
    const QVSTYLE colors = ColorsOnScreen(wished);
    if (nStyle <= 0) {
        nStyle = table.AddStyle(colors.crText, colors.crBk);
    } else {
        table.UpdateStyle(nStyle, colors.crText, colors.crBk);
    }
}
