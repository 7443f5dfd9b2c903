// Core without a window; the tree, the grid, the wrapped text and a sort of a million rows beside
// Qt's own where that was asked for. With the argument "show", how long Qt takes to show a model.

#include "base/multi_byte.h"
#include "bench.h"
#include "common/core/path.h"
#include "grid/core/grid_model.h"
#include "print/core/text_wrap.h"
#include "support/fake_page_items.h"
#include "support/test_tree.h"
#include "text/core/display_rows.h"
#include "text/core/type_ahead.h"
#include "virtual_list_bench.h"

#include <algorithm>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>
#ifdef QV_PEERS
#include "qt_peer.h"
#endif

namespace {

constexpr char kText[] = "twenty bytes of text";
constexpr int kMillion = 1000000;
constexpr int kRoots = 100;
constexpr int kMiddle = 10;
constexpr int kLeaves = 109;  // 100 + 1,000 + 109,000 items

double Append(int nItems) {
    TestTree tree;
    tree.SetRedraw(false);
    return bench::Time([&] {
        for (int i = 0; i < nItems; ++i) {
            tree.InsertItem(kText, 0, 0, nullptr, TVI_LAST);
        }
    });
}

void Fill(TestTree& tree, int nItems) {
    tree.SetRedraw(false);
    for (int i = 0; i < nItems; ++i) {
        tree.InsertItem(kText, 0, 0, nullptr, TVI_LAST);
    }
    tree.SetRedraw(true);
}

double ExpandAll() {
    TestTree tree;
    tree.window.size = {400, 600};
    tree.SetRedraw(false);
    for (int i = 0; i < kRoots; ++i) {
        HTREEITEM hRoot = tree.Add("root");
        for (int k = 0; k < kMiddle; ++k) {
            HTREEITEM hMiddle = tree.Add("middle", hRoot);
            for (int m = 0; m < kLeaves; ++m) {
                tree.Add("leaf", hMiddle);
            }
        }
    }
    tree.SetRedraw(true);
    return bench::Time([&] {
        tree.SetRedraw(false);
        for (HTREEITEM h = tree.Root(); h != nullptr; h = tree.Items().WalkNext(h)) {
            tree.Expand(h, TVE_EXPAND, false, false);
        }
        tree.SetRedraw(true);
    });
}

std::vector<std::string> RandomTexts(int nTexts) {
    std::mt19937 random(11);
    std::vector<std::string> texts;
    for (int i = 0; i < nTexts; ++i) {
        std::string strText;
        for (int k = 0; k < 12; ++k) {
            strText += static_cast<char>('a' + random() % 26);
        }
        texts.push_back(strText);
    }
    return texts;
}

double Sort(const std::vector<std::string>& texts) {
    TestTree tree;
    tree.SetRedraw(false);
    HTREEITEM hParent = tree.Add("parent");
    for (const std::string& strText : texts) {
        tree.Add(strText, hParent);
    }
    return bench::Time([&] { tree.SortChildren(hParent); });
}

size_t HeapBytes() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Heap bytes an item above its text of 21 bytes, with and without the index that a window needs.
double BytesAnItem(bool bIndexed) {
    const size_t nBefore = HeapBytes();
    TestTree tree;
    if (bIndexed) {
        Fill(tree, kMillion);
    } else {
        tree.SetRedraw(false);
        for (int i = 0; i < kMillion; ++i) {
            tree.InsertItem(kText, 0, 0, nullptr, TVI_LAST);
        }
    }
    return static_cast<double>(HeapBytes() - nBefore) / kMillion - sizeof(kText);
}

void MeasureRows() {
    constexpr int kSteps = 10000;
    for (const int nRows : {100, 100000}) {
        TestTree tree;
        Fill(tree, nRows);
        const double nScroll = bench::MedianOf([&] {
            return bench::Time([&] {
                for (int i = 0; i < kSteps; ++i) {
                    tree.VScroll(i % 20 < 10 ? SB_LINEDOWN : SB_LINEUP, 0);
                }
            });
        });
        bench::Figure(nRows == 100 ? "tree/core-scroll-line-100" : "tree/core-scroll-line-100k",
                      nScroll / kSteps * 1e9, "ns");
    }
    TestTree tree;
    Fill(tree, 100000);
    const double nInsert = bench::MedianOf([&] {
        return bench::Time([&] {
            for (int i = 0; i < 1000; ++i) {
                tree.InsertItem(kText, 0, 0, nullptr, TVI_LAST);
            }
        });
    });
    bench::Figure("tree/core-insert-redraw-on-100k", nInsert / 1000 * 1e9, "ns");
    HTREEITEM hLast = tree.Root();
    while (hLast->pNextSibling != nullptr) {
        hLast = hLast->pNextSibling;
    }
    const double nEnsure = bench::MedianOf([&] {
        return bench::Time([&] {
            tree.EnsureVisible(hLast);
            tree.EnsureVisible(tree.Root());
        });
    });
    bench::Figure("tree/core-ensure-far", nEnsure / 2 * 1e6, "us");
    const double nDelete = bench::MedianOf([&] {
        TestTree full;
        Fill(full, 100000);
        return bench::Time([&] {
            while (full.Root() != nullptr) {
                full.DeleteItem(full.Root());
            }
        });
    });
    bench::Figure("tree/core-delete-each-100k", nDelete * 1e3, "ms");
}

constexpr int kGridRows = 100000;
constexpr int kGridColumns = 5;

// Five fields a row, all different.
std::vector<std::string> GridRows() {
    std::vector<std::string> rows;
    for (int nRow = 0; nRow < kGridRows; ++nRow) {
        std::string strRow;
        for (int nCol = 0; nCol < kGridColumns; ++nCol) {
            strRow.append(nCol > 0 ? "\t" : "").append("row ").append(std::to_string(nRow));
            strRow.append(" column ").append(std::to_string(nCol));
        }
        rows.push_back(strRow);
    }
    return rows;
}

void FillGrid(qv::GridModel& model, const std::vector<std::string>& rows) {
    for (int nCol = 0; nCol < kGridColumns; ++nCol) {
        model.AddColumn(gctEdit, 80);
    }
    for (const std::string& strRow : rows) {
        model.AddRow(strRow, 0);
    }
}

double FillGrid(const std::vector<std::string>& rows) {
    qv::GridModel model;
    return bench::Time([&] { FillGrid(model, rows); });
}

// Heap bytes a row above its texts and their terminators: one for each TAB and the row's own.
double BytesAGridRow(const std::vector<std::string>& rows) {
    size_t nText = 0;
    for (const std::string& strRow : rows) {
        nText += strRow.size() + 1;
    }
    const size_t nBefore = HeapBytes();
    qv::GridModel model;
    FillGrid(model, rows);
    return static_cast<double>(HeapBytes() - nBefore - nText) / kGridRows;
}

double Paginate() {
    FakePageItems items;
    items.List(100000, 15);
    for (int i = 0; i < 250; ++i) {
        items.Section().Group().Text(2000).Break();
    }
    std::vector<qv::PageRecord> pages;
    return bench::Time([&] { qv::Paginate(items, 80, 700, pages); });
}

// Proportional widths of a byte each, as a font's table gives them.
class TableMeasure : public qv::TextMeasure {
public:
    // One width for all bytes.
    explicit TableMeasure(int nCharWidth) {
        std::fill(std::begin(m_aWidths), std::end(m_aWidths), nCharWidth);
    }
    TableMeasure() {
        for (int i = 0; i < 256; ++i) {
            m_aWidths[i] = 4 + i * 7 % 9;
        }
    }
    qv::Size Extent(std::string_view text) override {
        int nWidth = 0;
        for (const char ch : text) {
            nWidth += m_aWidths[static_cast<unsigned char>(ch)];
        }
        return {nWidth, 13};
    }
    void PrefixWidths(std::string_view text, int* pWidths) override {
        int nWidth = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            pWidths[i] = nWidth += m_aWidths[static_cast<unsigned char>(text[i])];
        }
    }

private:
    int m_aWidths[256];
};

double Wrap(int nMegabytes) {
    std::mt19937 random(13);
    std::string strText;
    while (strText.size() < static_cast<std::size_t>(nMegabytes) * kMillion) {
        strText.append(1 + random() % 10, static_cast<char>('a' + random() % 26)) += ' ';
    }
    TableMeasure measure;
    std::vector<std::string_view> lines;
    return bench::Time([&] { qv::WrapLine(strText, 600, measure, qv::MultiByte::Utf8(), lines); });
}

void MeasurePrint() {
    bench::Figure("print/paginate-100k", bench::MedianOf(Paginate) * 1e3, "ms");
    bench::Figure("print/wrap-1mb", bench::MedianOf([] { return Wrap(1); }) * 1e3, "ms");
    bench::Figure("print/wrap-2mb", bench::MedianOf([] { return Wrap(2); }) * 1e3, "ms");
}

constexpr int kLogLines = 85000;
constexpr std::size_t kLogLineBytes = 120;
constexpr int kLogCharsARow = 90;

// Words of 1 to 12 letters behind a number.
std::vector<std::string> LogLines(int nLines) {
    std::mt19937 random(17);
    std::vector<std::string> lines;
    for (int i = 0; i < nLines; ++i) {
        std::string strLine = std::to_string(1000000 + i);
        while (strLine.size() < kLogLineBytes) {
            strLine += ' ';
            strLine.append(1 + random() % 12, static_cast<char>('a' + random() % 26));
        }
        strLine.resize(kLogLineBytes);
        lines.push_back(strLine);
    }
    return lines;
}

// A text window's lines and rows in a font of one width.
class Log {
public:
    Log() { m_styles.Add(0, 0); }
    void Add(const std::string& strLine) { m_lines.Add(strLine, 0); }
    void Format() { m_rows.Format(m_lines, m_styles, kLogCharsARow * kCharWidth, m_splitter); }
    int CountRows() const { return m_rows.Count(); }

private:
    static constexpr int kCharWidth = 8;

    qv::TextLines m_lines;
    qv::StyleTable m_styles;
    TableMeasure m_measure{kCharWidth};
    qv::TextSplitter m_splitter{m_measure};
    qv::DisplayRows m_rows;
};

double WrapLog(const std::vector<std::string>& lines, int& nRows) {
    Log log;
    for (const std::string& strLine : lines) {
        log.Add(strLine);
    }
    const double nSeconds = bench::Time([&] { log.Format(); });
    nRows = log.CountRows();
    return nSeconds;
}

// Heap bytes a row of lines and rows, above nTexts times the text.
double BytesALogRow(const std::vector<std::string>& lines, int nTexts) {
    const size_t nBefore = HeapBytes();
    Log log;
    for (const std::string& strLine : lines) {
        log.Add(strLine);
    }
    log.Format();
    const double nText = static_cast<double>(lines.size() * kLogLineBytes);
    return (static_cast<double>(HeapBytes() - nBefore) - nTexts * nText) / log.CountRows();
}

// Seconds to add one line more to 100,000 and format it.
double AppendFollow(const std::vector<std::string>& lines) {
    constexpr int kAppended = 1000;
    Log log;
    for (std::size_t i = 0; i < 100000; ++i) {
        log.Add(lines[i % lines.size()]);
    }
    log.Format();
    return bench::Time([&] {
               for (std::size_t i = 0; i < kAppended; ++i) {
                   log.Add(lines[i]);
                   log.Format();
               }
           }) /
           kAppended;
}

void MeasureText(const std::vector<std::string>& lines) {
    bench::Figure("text/core-bytes-a-row", BytesALogRow(lines, 2), "bytes");
    bench::Figure("text/core-bytes-a-row-above-text", BytesALogRow(lines, 1), "bytes");
    bench::Figure("text/core-append-follow",
                  bench::MedianOf([&] { return AppendFollow(lines); }) * 1e6, "us");
}

// Beginnings of 1 to 8 letters, found and not found, in a million sorted names.
void MeasureTypeAhead() {
    const qv::MultiByte text;
    std::vector<std::string> names = RandomTexts(kMillion);
    std::sort(names.begin(), names.end());
    std::mt19937 random(19);
    std::vector<std::string> typed;
    for (int i = 0; i < 100000; ++i) {
        typed.push_back(names[random() % names.size()].substr(0, 1 + random() % 8));
        if (i % 2 != 0) {
            typed.back().back() = '!';  // behind no letter stands one
        }
    }
    const auto order = [&](const std::string& strName, const std::string& strTyped) {
        return text.CompareNoCase(strName.c_str(), strTyped.c_str(), strTyped.size());
    };
    long long nOurSum = 0;
    long long nTheirSum = 0;
    const auto ours = [&] {
        nOurSum = 0;
        for (const std::string& str : typed) {
            const int nFound = qv::FindTyped(
                kMillion, [&](int n) { return order(names[static_cast<std::size_t>(n)], str); });
            nOurSum += nFound >= 0 ? nFound : 0;
        }
    };
    const auto theirs = [&] {
        nTheirSum = 0;
        for (const std::string& str : typed) {
            const auto it = std::lower_bound(
                names.begin(), names.end(), str,
                [&](const std::string& strName, const auto&) { return order(strName, str) < 0; });
            nTheirSum += it != names.end() && order(*it, str) == 0 ? it - names.begin() : 0;
        }
    };
    const bench::Pair pair =
        bench::FastestPair([&] { return bench::Time(ours); }, [&] { return bench::Time(theirs); });
    if (nOurSum != nTheirSum) {
        std::printf("type-ahead and lower_bound find different names\n");
        std::exit(1);
    }
    bench::Figure("edits/speed-find-1m", pair.ours / static_cast<double>(typed.size()) * 1e9, "ns");
    bench::Ratio("edits/speed-find-1m", pair.ours, pair.theirs);
}

// Paths of five folders and a name are put together and taken apart, beside the standard library's.
void MeasurePaths() {
    constexpr std::size_t kParts = 6;
    const std::vector<std::string> names = RandomTexts(1000);
    std::mt19937 random(17);
    std::vector<std::array<const std::string*, kParts>> paths(kMillion);
    for (auto& path : paths) {
        for (const std::string*& pName : path) {
            pName = &names[random() % names.size()];
        }
    }
    const qv::MultiByte text = qv::MultiByte::Utf8();
    const qv::PathText rules(text, '/');
    std::size_t nOurBytes = 0;
    std::size_t nTheirBytes = 0;
    const auto ours = [&] {
        nOurBytes = 0;
        for (const auto& path : paths) {
            std::string strPath = "/";
            for (const std::string* pName : path) {
                rules.Append(strPath, *pName);
            }
            std::size_t nPos = 0;
            for (auto part = rules.Next(strPath, nPos); !part.empty();
                 part = rules.Next(strPath, nPos)) {
                nOurBytes += part.size();
            }
        }
    };
    const auto theirs = [&] {
        nTheirBytes = 0;
        for (const auto& path : paths) {
            std::filesystem::path made = "/";
            for (const std::string* pName : path) {
                made /= *pName;
            }
            for (const auto& part : made.relative_path()) {
                nTheirBytes += part.native().size();
            }
        }
    };
    const bench::Pair pair =
        bench::FastestPair([&] { return bench::Time(ours); }, [&] { return bench::Time(theirs); });
    if (nOurBytes != nTheirBytes) {
        std::printf("both find different components\n");
        std::exit(1);
    }
    bench::Figure("common/path-1m", pair.ours * 1e3, "ms");
    bench::Figure("std-common/path-1m", pair.theirs * 1e3, "ms");
    bench::Ratio("common/path-1m", pair.ours, pair.theirs);
}

#ifdef QV_PEERS
// By the platform that Qt is told in the environment.
void MeasureShow(const std::string& strName) {
    constexpr int kShows = 60;
    constexpr int kColumns = 5;
    qt_peer::Shown best = qt_peer::ShowModel(kMillion, kColumns);
    double nAdded = qt_peer::ShowMoreRows(kMillion, kColumns);
    for (int i = 1; i < kShows; ++i) {
        const qt_peer::Shown shown = qt_peer::ShowModel(kMillion, kColumns);
        best.firstPage = std::min(best.firstPage, shown.firstPage);
        best.ready = std::min(best.ready, shown.ready);
        nAdded = std::min(nAdded, qt_peer::ShowMoreRows(kMillion, kColumns));
    }
    bench::Figure(strName.c_str(), best.ready * 1e3, "ms");
    bench::Figure((strName + "-first-page").c_str(), best.firstPage * 1e3, "ms");
    bench::Figure((strName + "-rows-added").c_str(), nAdded * 1e3, "ms");
}
#endif

}  // namespace

int main(int argc, char** argv) {
#ifdef QV_PEERS
    if (argc > 1 && std::string(argv[1]) == "show") {
        qt_peer::Start(argc, argv);
        MeasureShow("qt-list/virtual-show-1m");
        return 0;
    }
#endif
    std::printf("core, natively\n");
    bench::Figure("tree/core-bytes-an-item", BytesAnItem(false), "bytes");
    bench::Figure("tree/core-bytes-an-item-indexed", BytesAnItem(true), "bytes");
    bench::Figure("tree/core-append-run-1k", bench::MedianOf([] { return Append(1000); }) * 1e6,
                  "ns");
    const std::vector<std::string> texts = RandomTexts(100000);
    const std::vector<std::string> rows = GridRows();
    bench::Figure("grid/core-bytes-a-row", BytesAGridRow(rows), "bytes");
    const std::vector<std::string> log = LogLines(kLogLines);
    int nLogRows = 0;
#ifdef QV_PEERS
    qt_peer::Start(argc, argv);
    const auto append = bench::FastestPair([] { return Append(kMillion); },
                                           [] { return qt_peer::Append(kMillion, kText); });
    const auto expand =
        bench::FastestPair(ExpandAll, [] { return qt_peer::ExpandAll(kRoots, kMiddle, kLeaves); });
    const auto sort =
        bench::FastestPair([&] { return Sort(texts); }, [&] { return qt_peer::Sort(texts); });
    const auto grid = bench::FastestPair([&] { return FillGrid(rows); },
                                         [&] { return qt_peer::FillTable(rows, kGridColumns); });
    int nPeerRows = 0;
    const auto wrap =
        bench::FastestPair([&] { return WrapLog(log, nLogRows); },
                           [&] { return qt_peer::WrapLines(log, kLogCharsARow, nPeerRows); });
    bench::Figure("qt-text/core-wrap-10mb-rows", nPeerRows, "rows");
    MeasureShow("qt-list/virtual-show-1m-offscreen");
#else
    static_cast<void>(argc);
    static_cast<void>(argv);
    const bench::Pair append{bench::MedianOf([] { return Append(kMillion); }), 0};
    const bench::Pair expand{bench::MedianOf(ExpandAll), 0};
    const bench::Pair sort{bench::MedianOf([&] { return Sort(texts); }), 0};
    const bench::Pair grid{bench::MedianOf([&] { return FillGrid(rows); }), 0};
    const bench::Pair wrap{bench::MedianOf([&] { return WrapLog(log, nLogRows); }), 0};
#endif
    bench::Figure("text/core-wrap-10mb-rows", nLogRows, "rows");
    struct Line {
        const char* pszName;
        bench::Pair pair;
        double factor;
        const char* pszUnit;
    };
    for (const Line& line : {Line{"tree/core-append-1m", append, 1e3, "ns"},
                             Line{"tree/core-expand-all-110k", expand, 1e3, "ms"},
                             Line{"tree/core-sort-100k", sort, 1e3, "ms"},
                             Line{"grid/core-fill-100k-x5", grid, 1e3, "ms"},
                             Line{"text/core-wrap-10mb", wrap, 1e3, "ms"}}) {
        bench::Figure(line.pszName, line.pair.ours * line.factor, line.pszUnit);
        if (line.pair.theirs > 0) {
            const std::string strTheirs = std::string("qt-") + line.pszName;
            bench::Figure(strTheirs.c_str(), line.pair.theirs * line.factor, line.pszUnit);
            bench::Ratio(line.pszName, line.pair.ours, line.pair.theirs);
        }
    }
    MeasureRows();
    MeasurePrint();
    MeasureText(log);
    MeasureTypeAhead();
    MeasurePaths();
    MeasureVirtualSort();
    return 0;
}
