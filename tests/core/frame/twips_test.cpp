#include "frame/core/twips.h"

#include <gtest/gtest.h>

TEST(Twips, WholePixelsComeBackFromTwipsAtAnySizeOfTheScreensFonts) {
    for (const int nPerInch : {96, 120, 144, 168, 192, 288}) {
        for (const int nPixels : {-1280, -1, 0, 1, 5, 1279, 3840}) {
            // Rounded, as controls tell them.
            const double fTwips = static_cast<double>(nPixels) * qv::kTwipsPerInch / nPerInch;
            const auto nTwips = static_cast<long long>(fTwips + (nPixels < 0 ? -0.5 : 0.5));
            EXPECT_EQ(qv::TwipsToPixels(nTwips, nPerInch), nPixels) << nPerInch;
        }
    }
}

TEST(Twips, PartsOfAPixelAreLeftOut) {
    EXPECT_EQ(qv::TwipsToPixels(14, 96), 0);
    EXPECT_EQ(qv::TwipsToPixels(1499, 96), 99);
    EXPECT_EQ(qv::TwipsToPixels(-1499, 96), -99);
    EXPECT_EQ(qv::PixelsToTwips(3, 192), 22);
}

TEST(Twips, ADeviceThatIsFinerOrTellsNoResolutionHasPixelsToo) {
    EXPECT_EQ(qv::TwipsToPixels(0, 2880), 0);
    EXPECT_EQ(qv::TwipsToPixels(700, 2880), 700);
    EXPECT_EQ(qv::TwipsToPixels(30, 0), 2);
    EXPECT_EQ(qv::PixelsToTwips(2, 0), 30);
}
