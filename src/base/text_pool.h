// Heap of the short NUL-terminated texts of a control: one block a text, freed one at a time or all
// at once. Blocks come from chunks, by size classes with free lists, which makes a hundred thousand
// small texts cost a fraction of as many calls to the process heap. Nothing throws: no memory gives
// null.

#pragma once

#include <array>
#include <cstddef>

namespace qv {

class TextPool {
public:
    TextPool() = default;
    ~TextPool();
    TextPool(const TextPool&) = delete;
    TextPool& operator=(const TextPool&) = delete;

    // Room for nBytes, the terminator included. Null if there is no memory.
    char* Allocate(std::size_t nBytes);
    // Null is allowed.
    void Free(char* psz);
    // Gives back every text and chunk.
    void FreeAll();

private:
    struct Chunk {
        Chunk* pNext;
    };
    struct LargeBlock {
        LargeBlock* pNext;
        LargeBlock* pPrev;
    };
    struct FreeBlock {
        FreeBlock* pNext;
    };

    char* AllocateLarge(std::size_t nBytes);
    void FreeLarge(char* psz);
    bool AddChunk(std::size_t nLeast);

    static constexpr std::size_t kGranule = 8;
    static constexpr std::size_t kLargestSmall = 256;

    std::array<FreeBlock*, kLargestSmall / kGranule + 1> m_free{};
    Chunk* m_pChunks = nullptr;
    LargeBlock* m_pLarge = nullptr;
    unsigned char* m_pFresh = nullptr;
    unsigned char* m_pEnd = nullptr;
    std::size_t m_nNextChunk = 512;
};

}  // namespace qv
