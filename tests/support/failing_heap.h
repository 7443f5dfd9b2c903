// Makes the heap of all our modules run out of memory at will, for tests in real windows.
#pragma once

/// While it lives, allocations of this thread through malloc, calloc, realloc or operator new fail
/// as told, whichever of our modules asks: the program, a library, the compiler's runtime. What the
/// system's own modules allocate is left alone. One object at a time.
///
/// Its life surrounds just the operation under test: a failing check of the test framework would
/// find no memory either. Remember results inside and check them afterwards, or use
/// RefuseEachAllocation.
class FailingHeap {
public:
    enum Mode {
        kAllLater,  ///< all allocations after the first nSucceeding fail
        kJustOne    ///< the one after the first nSucceeding fails, later ones succeed again
    };

    /// nSucceeding: how many allocations succeed before one is refused.
    explicit FailingHeap(int nSucceeding, Mode mode = kAllLater);
    ~FailingHeap();
    FailingHeap(const FailingHeap&) = delete;
    FailingHeap& operator=(const FailingHeap&) = delete;

    /// Allocations refused so far. 0 in the end: the operation needs no more than nSucceeding.
    int Refused() const;
};

/// Runs an operation again and again and refuses its first allocation, then its second, and so on,
/// until it asks for no more. After each run, with memory again, check(nSucceeding) is called.
/// Gives the number of runs in which something was refused. An operation that does not get done
/// with 100,000 allocations is given up.
template <typename Operation, typename Check>
int RefuseEachAllocation(FailingHeap::Mode mode, Operation operation, Check check) {
    constexpr int kMostRuns = 100000;
    for (int nSucceeding = 0; nSucceeding < kMostRuns; ++nSucceeding) {
        int nRefused = 0;
        {
            FailingHeap heap(nSucceeding, mode);
            operation();
            nRefused = heap.Refused();
        }
        check(nSucceeding);
        if (nRefused == 0) {
            return nSucceeding;
        }
    }
    return kMostRuns;
}
