#include "support/failing_new.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int kNeverFails = -1;
int s_nSucceeding = kNeverFails;

void* Allocate(std::size_t nBytes) {
    if (s_nSucceeding == 0) {
        return nullptr;
    }
    if (s_nSucceeding > 0) {
        --s_nSucceeding;
    }
    return std::malloc(nBytes == 0 ? 1 : nBytes);
}

}  // namespace

FailingNew::FailingNew(int nSucceeding) {
    s_nSucceeding = nSucceeding;
}
FailingNew::~FailingNew() {
    s_nSucceeding = kNeverFails;
}

void* operator new(std::size_t nBytes) {
    if (void* p = Allocate(nBytes)) {
        return p;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t nBytes) {
    return operator new(nBytes);
}
void* operator new(std::size_t nBytes, const std::nothrow_t&) noexcept {
    return Allocate(nBytes);
}
void* operator new[](std::size_t nBytes, const std::nothrow_t&) noexcept {
    return Allocate(nBytes);
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete[](void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}
void operator delete[](void* p, std::size_t) noexcept {
    std::free(p);
}
