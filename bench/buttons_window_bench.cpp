// A bitmap button beside the platform's push button with an icon, of one size and image, in one
// process. A repaint is what a click costs, twice.

#include "QVControls.h"
#include "window_bench.h"

#include <cstdlib>

namespace {

constexpr int kRepaints = 1000;
constexpr int kImageSide = 32;
constexpr int kManyRepaints = 10000;

class Pair {
public:
    Pair() : m_frame(CSize(200, 100)) {
        const HICON hIcon = ::LoadIcon(nullptr, IDI_APPLICATION);
        images.Create(kImageSide, kImageSide, ILC_COLOR32 | ILC_MASK, 1, 0);
        images.Add(hIcon);
        ours.Create("", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(10, 10, 60, 55), &m_frame, 1);
        ours.SetImageID(&images, 0);
        platforms.Create("", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON | BS_ICON,
                         CRect(70, 10, 120, 55), &m_frame, 2);
        platforms.SetIcon(hIcon);
        m_frame.UpdateWindow();
    }
    static double Repaint(CWnd& wnd, int nTimes = kRepaints) {
        return bench::Time([&] {
                   for (int i = 0; i < nTimes; ++i) {
                       wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
                   }
               }) /
               nTimes;
    }
    // Seconds for a repaint in a state, up and enabled again afterwards.
    double RepaintIn(int nCheck, BOOL bEnabled) {
        ours.SetCheck(nCheck);
        ours.EnableWindow(bEnabled);
        const double seconds = bench::MedianOf([&] { return Repaint(ours); });
        ours.EnableWindow(TRUE);
        ours.SetCheck(0);
        return seconds;
    }

private:
    bench::Frame m_frame;

public:
    CImageList images;
    QVBitmapButton ours;
    CButton platforms;
};

}  // namespace

void MeasureButtons() {
    constexpr double kMicroseconds = 1e6;
    Pair buttons;
    bench::Compare("buttons/repaint", kMicroseconds, "us",
                   bench::FastestPair([&] { return Pair::Repaint(buttons.ours); },
                                      [&] { return Pair::Repaint(buttons.platforms); }));
    bench::Figure("buttons/repaint-greyed", buttons.RepaintIn(0, FALSE) * kMicroseconds, "us");
    bench::Figure("buttons/repaint-shaded", buttons.RepaintIn(1, TRUE) * kMicroseconds, "us");
    const LONG nOwned = AfxGetOwnedHandleCount();
    for (const int nCheck : {0, 1, 2}) {
        buttons.ours.SetCheck(nCheck);
        Pair::Repaint(buttons.ours, kManyRepaints / 3 + 1);
    }
    if (AfxGetOwnedHandleCount() != nOwned) {
        std::fprintf(stderr, "buttons: %ld handles more after %d repaints\n",
                     AfxGetOwnedHandleCount() - nOwned, kManyRepaints);
        std::exit(1);
    }
}
