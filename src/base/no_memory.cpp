#include "base/no_memory.h"

#include <new>

namespace qv {
namespace {

SaysNoMemory s_saysIt = nullptr;

}  // namespace

void ExpectNoMemory() {
    try {
        throw;
    } catch (const std::bad_alloc&) {
    } catch (...) {
        if (s_saysIt == nullptr || !s_saysIt()) {
            throw;
        }
    }
}

void SetOtherWordForNoMemory(SaysNoMemory saysIt) {
    s_saysIt = saysIt;
}

}  // namespace qv
