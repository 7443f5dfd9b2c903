// Random sizes, ratios and deeds of the mouse on the bar of a split window.

#include "fuzz_input.h"
#include "support/split_player.h"

namespace {

// Mostly of a window's size; now and then anything.
int Number(FuzzInput& input) {
    const int n = input.Int() % 1100;
    return input.Byte() % 16 == 0 ? static_cast<int>(static_cast<unsigned>(n) * 2654435761u) : n;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    SplitPlayer player(input.Byte() % 2 == 0, static_cast<int>(input.Byte() % 12));
    while (!input.AtEnd()) {
        const unsigned nDeed = input.Byte() % 8;
        const int x = Number(input);
        const int y = Number(input);
        if (nDeed == 0) {
            player.SetRatio(input.Byte() % 4 == 0 ? x : x % 101);
        }
        FUZZ_CHECK(nDeed == 0   ? true
                   : nDeed == 1 ? player.Resize({x, y})
                   : nDeed == 2 ? player.Release()
                   : nDeed == 3 ? player.Cancel()
                   : nDeed == 4 ? player.Press({x, y})
                                : player.MoveTo({x, y}));
    }
    return 0;
}
