#include "base/text_pool.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <utility>

// Under the address sanitizer, unused bytes of a chunk are off limits, as they would be on the
// process heap.
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

namespace qv {

namespace {

// The two bytes before a text hold the size class of its block; 0 marks a large one.
using ClassTag = std::uint16_t;
constexpr std::size_t kTag = sizeof(ClassTag);
constexpr std::size_t kLargestChunk = 64 * 1024;

ClassTag& TagOf(char* psz) {
    return *reinterpret_cast<ClassTag*>(psz - kTag);
}

}  // namespace

TextPool::~TextPool() {
    FreeAll();
}

char* TextPool::Allocate(std::size_t nBytes) {
    const std::size_t nClass = (nBytes + kTag + kGranule - 1) / kGranule;
    const std::size_t nBlock = nClass * kGranule;
    if (nBlock > kLargestSmall) {
        return AllocateLarge(nBytes);
    }
    void* pBlock = m_free[nClass];
    if (pBlock != nullptr) {
        ASAN_UNPOISON_MEMORY_REGION(pBlock, nBlock);
        m_free[nClass] = static_cast<FreeBlock*>(pBlock)->pNext;
    } else {
        if (static_cast<std::size_t>(m_pEnd - m_pFresh) < nBlock && !AddChunk(nBlock)) {
            return nullptr;
        }
        pBlock = m_pFresh;
        m_pFresh += nBlock;
        ASAN_UNPOISON_MEMORY_REGION(pBlock, kTag + nBytes);
    }
    char* psz = static_cast<char*>(pBlock) + kTag;
    TagOf(psz) = static_cast<ClassTag>(nClass);
    return psz;
}

void TextPool::Free(char* psz) {
    if (psz == nullptr) {
        return;
    }
    const std::size_t nClass = TagOf(psz);
    if (nClass == 0) {
        FreeLarge(psz);
        return;
    }
    void* pBlock = psz - kTag;
    ASAN_UNPOISON_MEMORY_REGION(pBlock, nClass * kGranule);
    m_free[nClass] = new (pBlock) FreeBlock{m_free[nClass]};
    ASAN_POISON_MEMORY_REGION(pBlock, nClass * kGranule);
}

void TextPool::FreeAll() {
    while (m_pChunks != nullptr) {
        ::operator delete(std::exchange(m_pChunks, m_pChunks->pNext));
    }
    while (m_pLarge != nullptr) {
        ::operator delete(std::exchange(m_pLarge, m_pLarge->pNext));
    }
    m_free.fill(nullptr);
    m_pFresh = nullptr;
    m_pEnd = nullptr;
    m_nNextChunk = 512;
}

char* TextPool::AllocateLarge(std::size_t nBytes) {
    void* pMemory = ::operator new(sizeof(LargeBlock) + kGranule + nBytes, std::nothrow);
    if (pMemory == nullptr) {
        return nullptr;
    }
    m_pLarge = new (pMemory) LargeBlock{m_pLarge, nullptr};
    if (m_pLarge->pNext != nullptr) {
        m_pLarge->pNext->pPrev = m_pLarge;
    }
    char* psz = static_cast<char*>(pMemory) + sizeof(LargeBlock) + kGranule;
    TagOf(psz) = 0;
    return psz;
}

void TextPool::FreeLarge(char* psz) {
    auto* pBlock = reinterpret_cast<LargeBlock*>(psz - kGranule - sizeof(LargeBlock));
    (pBlock->pPrev != nullptr ? pBlock->pPrev->pNext : m_pLarge) = pBlock->pNext;
    if (pBlock->pNext != nullptr) {
        pBlock->pNext->pPrev = pBlock->pPrev;
    }
    ::operator delete(pBlock);
}

// What is left of the last chunk is given up: at most one small block.
bool TextPool::AddChunk(std::size_t nLeast) {
    const std::size_t nBytes = std::max(m_nNextChunk, nLeast + sizeof(Chunk));
    void* pMemory = ::operator new(nBytes, std::nothrow);
    if (pMemory == nullptr) {
        return false;
    }
    m_pChunks = new (pMemory) Chunk{m_pChunks};
    m_pFresh = static_cast<unsigned char*>(pMemory) + sizeof(Chunk);
    m_pEnd = static_cast<unsigned char*>(pMemory) + nBytes;
    m_nNextChunk = std::min(nBytes * 2, kLargestChunk);
    ASAN_POISON_MEMORY_REGION(m_pFresh, m_pEnd - m_pFresh);
    return true;
}

}  // namespace qv
