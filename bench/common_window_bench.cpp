// The companion: what an entry costs in a log that is at its limit.

#include "QVControls.h"
#include "window_bench.h"

#include <cstdio>

namespace {

class LogAtItsLimit {
public:
    explicit LogAtItsLimit(unsigned long nLimit) : m_nLimit(nLimit) {
        char szFolder[MAX_PATH];
        ::GetTempPath(MAX_PATH, szFolder);
        ::GetTempFileName(szFolder, "qvb", 0, m_szPath);
        m_status.SetWhere("C:\\folder\\report.txt");
        CString strEntry;
        QVStatusOutputGenerator(nullptr).LogStatus(&m_status, strEntry);
        strEntry.Replace("\n", "\r\n");
        m_nEntryBytes = static_cast<unsigned long>(strEntry.GetLength());
        // Filled at once, as entries would have filled it.
        CFile file(m_szPath, CFile::modeCreate | CFile::modeWrite);
        CString strBlock;
        for (int i = 0; i < kBlock; ++i) {
            strBlock += strEntry;
        }
        for (unsigned long n = 0; n + m_nEntryBytes * kBlock < nLimit;
             n += m_nEntryBytes * kBlock) {
            file.Write(strBlock, static_cast<UINT>(strBlock.GetLength()));
        }
    }
    ~LogAtItsLimit() { std::remove(m_szPath); }

    // Seconds an entry, over as many as it takes to drop old ones several times.
    double Time(int nDrops) {
        const int nEntries = static_cast<int>(nDrops * (m_nLimit / 2 / m_nEntryBytes));
        QVStatusLogText log(m_szPath, m_nLimit);
        return bench::Time([&] {
                   for (int i = 0; i < nEntries; ++i) {
                       log.Log(&m_status);
                   }
               }) /
               nEntries;
    }

private:
    static constexpr int kBlock = 100;

    QVStatus m_status{1001, "The report could not be saved."};
    unsigned long m_nLimit;
    unsigned long m_nEntryBytes;
    char m_szPath[MAX_PATH];
};

}  // namespace

void MeasureCommon() {
    constexpr unsigned long kSmall = 100 * 1000;
    constexpr unsigned long kLarge = 10 * 1000 * 1000;
    LogAtItsLimit small(kSmall);
    LogAtItsLimit large(kLarge);
    const auto pair =
        bench::FastestPair([&] { return large.Time(1); }, [&] { return small.Time(20); }, 3);
    bench::Figure("common/log-append", pair.theirs * 1e6, "us at 100 KB");
    bench::Figure("common/log-append-10mb", pair.ours * 1e6, "us at 10 MB");
    bench::Ratio("common/log-append", pair.ours, pair.theirs);
}
