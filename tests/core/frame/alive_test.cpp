#include "frame/alive.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace {

struct Control {
    qv::AliveToken alive;
    int* hWnd = nullptr;
};

TEST(Alive, EveryWatchSeesTheEndOfItsObjectAloneInWhateverOrderTheyGo) {
    auto pControl = std::make_unique<Control>();
    Control other;
    const qv::AliveWatch watchOther(other.alive);
    std::optional<qv::AliveWatch> watches[4];
    for (auto& watch : watches) {
        watch.emplace(pControl->alive);
    }
    watches[1].reset();
    watches[3].reset();
    watches[0].reset();
    const qv::AliveWatch last(pControl->alive);
    EXPECT_TRUE(*watches[2]);
    pControl.reset();
    EXPECT_FALSE(*watches[2]);
    EXPECT_FALSE(last);
    EXPECT_TRUE(watchOther);
}

TEST(Alive, AWindowMayGoBeforeItsObject) {
    int aWindows[2];
    auto pControl = std::make_unique<Control>();
    EXPECT_FALSE(qv::WindowWatch(pControl->alive, pControl->hWnd)) << "there is no window";
    pControl->hWnd = &aWindows[0];
    const qv::WindowWatch watch(pControl->alive, pControl->hWnd);
    EXPECT_TRUE(watch);
    pControl->hWnd = nullptr;
    EXPECT_FALSE(watch);
    EXPECT_TRUE(watch.ObjectAlive());
    pControl->hWnd = &aWindows[1];
    EXPECT_FALSE(watch) << "another window than the one that was watched";
    pControl.reset();
    EXPECT_FALSE(watch.ObjectAlive());
}

TEST(Alive, AGuardPutsNothingBackIntoWhatIsGone) {
    struct Guard {
        explicit Guard(int& n) : n(n) { ++n; }
        ~Guard() { --n; }
        int& n;
    };
    int nHeld = 0;
    auto pControl = std::make_unique<Control>();
    const qv::AliveWatch watch(pControl->alive);
    { const qv::WhileAlive<Guard> guard(watch, nHeld); }
    EXPECT_EQ(nHeld, 0);
    {
        const qv::WhileAlive<Guard> guard(watch, nHeld);
        pControl.reset();
    }
    EXPECT_EQ(nHeld, 1);
}

}  // namespace
