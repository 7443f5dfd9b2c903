#include "base/no_memory.h"

#include <gtest/gtest.h>
#include <new>

namespace {

struct Refusal {};

int s_nDisposed = 0;

bool IsRefusal() {
    try {
        throw;
    } catch (Refusal* pRefusal) {
        delete pRefusal;
        ++s_nDisposed;
        return true;
    } catch (...) {
        return false;
    }
}

template <class Thrown>
bool IsTakenForNoMemory(Thrown thrown) {
    try {
        try {
            throw thrown;
        } catch (...) {
            qv::ExpectNoMemory();
        }
    } catch (const Thrown&) {
        return false;
    }
    return true;
}

TEST(NoMemory, IsSaidByTheLanguageAndByTheOtherWord) {
    Refusal refusal;
    EXPECT_FALSE(IsTakenForNoMemory(&refusal));
    qv::SetOtherWordForNoMemory(IsRefusal);
    EXPECT_TRUE(IsTakenForNoMemory(new Refusal));
    EXPECT_EQ(s_nDisposed, 1);
    EXPECT_TRUE(IsTakenForNoMemory(std::bad_alloc()));
    EXPECT_FALSE(IsTakenForNoMemory(5));
    qv::SetOtherWordForNoMemory(nullptr);
}

}  // namespace
