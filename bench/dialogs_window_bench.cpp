// Standard dialogs: a step of a long operation under a wait dialog, with nothing in the queue and
// the percentage changing a hundred times, beside the one look into the queue that it cannot do
// without; a branch of the machine browser.

#include "QVControls.h"
#include "window_bench.h"

#include <random>
#include <utility>

namespace {

constexpr int kSteps = 100000;

template <class Step>
double TimeSteps(Step step) {
    return bench::Time([&] {
               for (int i = 0; i < kSteps; ++i) {
                   step();
               }
           }) /
           kSteps;
}

// So many folders wherever they are asked for, in no order.
class ManyFolders : public QVMachineFolders {
public:
    void ListShares(LPCSTR psz, QVFolderTaker& taker) override { ListSubfolders(psz, taker); }
    void ListSubfolders(LPCSTR, QVFolderTaker& taker) override {
        std::mt19937 random(7);
        for (int i = 0; i < m_nFolders; ++i) {
            taker.TakeFolder(("folder " + std::to_string(random())).c_str(), 0);
        }
    }
    BOOL MachineAnswers(LPCSTR) override { return TRUE; }
    int GetImage(LPCSTR) override { return 0; }

    int m_nFolders = 1;
};

class Browser : public QVBrowseMachineDlg {
public:
    // Seconds until the first branch of the machine is read, open and painted.
    double TimeBranch(int nFolders) {
        ManyFolders folders;
        SetMachineFolders(&folders);
        if (!Create(kTemplate)) {
            return 0;
        }
        ShowWindow(SW_SHOW);
        m_wndTree.SelectItem(m_wndTree.GetChildItem(m_wndTree.GetRootItem()));
        m_wndTree.UpdateWindow();
        folders.m_nFolders = nFolders;
        const double seconds = bench::Time([&] {
            m_wndTree.SendMessage(WM_KEYDOWN, VK_RIGHT);
            m_wndTree.UpdateWindow();
        });
        DestroyWindow();
        return seconds;
    }

private:
    static constexpr UINT kTemplate = 30006;
};

// The folders of the machine that this runs on, by the shell and by plain calls, or none.
double TimeReal(QVMachineFolders& folders, int& nFolders) {
    class Counter : public QVFolderTaker {
    public:
        BOOL TakeFolder(LPCSTR, int) override { return ++m_nTaken; }
        int m_nTaken = 0;
    } counter;
    const double seconds =
        bench::Time([&] { folders.ListSubfolders("Z:\\usr\\share\\doc", counter); });
    nFolders = counter.m_nTaken;
    return seconds;
}

void MeasureBrowsing() {
    constexpr double kMilliseconds = 1e3;
    constexpr double kMicroseconds = 1e6;
    bench::Figure("dialogs/browse-10k",
                  bench::MedianOf([] { return Browser().TimeBranch(10000); }) * kMilliseconds,
                  "ms");
    QVFileFolders files;
    int nFolders = 0;
    for (auto [pszName, pFolders] :
         {std::pair<const char*, QVMachineFolders*>{"dialogs/read-folder-files", &files},
          {"dialogs/read-folder-shell", &QVMachineFolders::Network()}}) {
        const double seconds =
            bench::MedianOf([&, pTimed = pFolders] { return TimeReal(*pTimed, nFolders); });
        if (nFolders > 0) {
            bench::Figure(pszName, seconds / nFolders * kMicroseconds, "us");
        }
    }
}

}  // namespace

void MeasureDialogs() {
    constexpr double kMicroseconds = 1e6;
    bench::Frame frame;
    QVWaitDlg wait;
    wait.Display(&frame, FALSE);
    const auto steps = [&] {
        wait.SetProgressRange(kSteps);
        return TimeSteps([&] { wait.Step(1); });
    };
    const auto looks = [] {
        return TimeSteps([] {
            MSG msg;
            ::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
        });
    };
    bench::Compare("dialogs/wait-step", kMicroseconds, "us", bench::FastestPair(steps, looks));
    MeasureBrowsing();
}
