// The fault injector itself: what it refuses, whom it leaves alone.
#include "support/failing_heap.h"

#include <afxtempl.h>
#include <afxwin.h>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

template <typename Operation>
bool Fails(Operation operation) {
    try {
        operation();
    } catch (const std::bad_alloc&) {
        return true;
    } catch (CException* pException) {
        pException->Delete();
        return true;
    }
    return false;
}

// Each asks once or more, in another module: the program, the framework, the compiler's runtime.
struct Asking {
    const char* pszName;
    void (*pfnAsk)();
};
constexpr Asking kAsking[] = {
    {"vector", [] { std::vector<int> numbers(1000); }},
    {"malloc",
     [] {
         if (void* p = std::malloc(10)) {
             std::free(p);
         } else {
             throw std::bad_alloc();
         }
     }},
    {"string in the runtime", [] { std::string().append(100, 'a'); }},
    {"CString", [] { CString str('a', 100); }},
    {"CObject of a record", [] {
         std::unique_ptr<CObject> pObject(RUNTIME_CLASS(CWnd)->CreateObject());
         if (pObject == nullptr) {
             throw std::bad_alloc();
         }
     }}};

}  // namespace

TEST(FailingHeap, RefusesInEveryModuleAndHealsAfterwards) {
    for (const Asking& asking : kAsking) {
        for (const FailingHeap::Mode mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
            bool bFailed = false;
            int nRefused = 0;
            {
                FailingHeap heap(0, mode);
                bFailed = Fails(asking.pfnAsk);
                nRefused = heap.Refused();
            }
            EXPECT_TRUE(bFailed) << asking.pszName;
            EXPECT_GT(nRefused, 0) << asking.pszName;
            EXPECT_FALSE(Fails(asking.pfnAsk)) << asking.pszName;
        }
    }
}

TEST(FailingHeap, LetsTheFirstAllocationsPassAndWalksThroughAllOfThem) {
    int nFailures = 0;
    std::vector<bool> whole;
    const auto threeStrings = [&nFailures] {
        nFailures += Fails([] {
            const std::string str1(100, 'a');
            const std::string str2(100, 'b');
            const std::string str3(100, 'c');
        });
    };
    for (const FailingHeap::Mode mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
        nFailures = 0;
        int nChecks = 0;
        EXPECT_EQ(3, RefuseEachAllocation(mode, threeStrings, [&](int) {
                      ++nChecks;
                      whole.assign(1000, true);  // there is memory again
                      whole.shrink_to_fit();
                  }));
        EXPECT_EQ(3, nFailures);
        EXPECT_EQ(4, nChecks);
    }
}

TEST(FailingHeap, LeavesOtherThreadsAlone) {
    bool bOtherFailed = true;
    const HANDLE hStart = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
    std::thread other([&] {
        ::WaitForSingleObject(hStart, INFINITE);
        bOtherFailed = Fails([] { std::vector<int> numbers(1000); });
    });
    {
        FailingHeap heap(0);
        ::SetEvent(hStart);
        other.join();
    }
    ::CloseHandle(hStart);
    EXPECT_FALSE(bOtherFailed);
}
