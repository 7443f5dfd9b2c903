// Feeds a fuzzer random inputs where libFuzzer is not at hand, for a time or that many of them.
//     NAME_fuzz [--seconds N | --inputs N] [--seed N]
// Prints the seed of each thousandth input, so that a failure can be found again.

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

int main(int argc, char** argv) {
    int nSeconds = 60;
    unsigned nMost = 0;  // none: as many as the time allows
    unsigned nSeed = std::random_device{}();
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view option = argv[i];
        if (option == "--seconds") {
            nSeconds = std::atoi(argv[i + 1]);
        } else if (option == "--inputs") {
            nMost = static_cast<unsigned>(std::atoi(argv[i + 1]));
        } else if (option == "--seed") {
            nSeed = static_cast<unsigned>(std::atoi(argv[i + 1]));
        }
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(nSeconds);
    unsigned nInputs = 0;
    const auto goesOn = [&] {
        return nMost != 0 ? nInputs < nMost : std::chrono::steady_clock::now() < end;
    };
    std::vector<std::uint8_t> bytes;
    for (; goesOn(); ++nInputs) {
        if (nInputs % 1000 == 0) {
            std::printf("inputs from seed %u on\n", nSeed + nInputs);
            std::fflush(stdout);
        }
        std::mt19937 random(nSeed + nInputs);
        bytes.resize(random() % 2000);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::printf("%u inputs, no fault\n", nInputs);
    return 0;
}
