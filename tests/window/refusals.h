// What each area's tests of memory share: every allocation of an operation is refused in turn.
#pragma once

#include "support/failing_heap.h"

#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

/// Counts what leaves its window procedure.
template <class Window>
class Watched : public Window {
public:
    int nThrown = 0;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        try {
            return Window::WindowProc(nMessage, wParam, lParam);
        } catch (...) {
            ++nThrown;
            return 0;
        }
    }
};

/// What came out of an operation.
enum class Outcome { kDone, kMemoryException, kOther };

template <class Operation>
Outcome Try(Operation operation) {
    try {
        operation();
        return Outcome::kDone;
    } catch (CMemoryException* e) {
        e->Delete();
        return Outcome::kMemoryException;
    } catch (CException* e) {
        e->Delete();
        return Outcome::kOther;
    } catch (...) {
        return Outcome::kOther;
    }
}

/// Refuses each allocation of the operation, alone and with all later ones; nothing may be thrown.
/// After each run, with memory again, check() is called. Gives the number of runs in which
/// something was refused: an operation that asks for no memory cannot go wrong.
template <class Operation, class Check>
int RefuseEach(const char* pszWhat, Operation operation, Check check) {
    int nRefused = 0;
    int nThrown = 0;
    for (const FailingHeap::Mode mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
        nRefused += RefuseEachAllocation(
            mode, [&] { nThrown += Try(operation) != Outcome::kDone; },
            [&](int nSucceeding) {
                SCOPED_TRACE(pszWhat);
                SCOPED_TRACE(nSucceeding);
                check();
            });
    }
    EXPECT_EQ(nThrown, 0) << pszWhat;
    return nRefused;
}

/// A control is made or not: without memory no window is left, and nothing is thrown. make gives
/// whether it was done; check() is called after each run, the control being there if it was.
template <class Control, class Make>
void ExpectMadeOrNot(
    Make make, const std::function<void()>& check = [] {}) {
    auto pControl = std::make_unique<Watched<Control>>();
    bool bMade = false;
    RefuseEach(
        "make", [&] { bMade = make(*pControl) != 0; },
        [&] {
            EXPECT_EQ(bMade, pControl->m_hWnd != nullptr);
            EXPECT_EQ(pControl->nThrown, 0);
            check();
            pControl = std::make_unique<Watched<Control>>();
        });
    EXPECT_TRUE(bMade);
}

/// Who writes to a disk that is full hears of it in an exception.
template <class Export>
void ExpectFullDiskIsTold(Export exportTo) {
    try {
        if (!exportTo("Z:\\dev\\full")) {
            GTEST_SKIP() << "needs a device that is always full";
        }
        FAIL() << "nothing was said";
    } catch (CFileException* pException) {
        EXPECT_EQ(pException->m_cause, CFileException::diskFull);
        EXPECT_EQ(pException->m_lOsError, ERROR_DISK_FULL);
        pException->Delete();
    }
}
