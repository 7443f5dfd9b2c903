#include "virtual_list_bench.h"

#include "bench.h"
#include "list/core/key_ranks.h"
#include "list/core/row_permutation.h"

#include <random>
#include <string>
#ifdef QV_PEERS
#include "qt_peer.h"
#endif

namespace {

constexpr int kRows = 1000000;

std::vector<std::string> RandomTexts(std::mt19937& random) {
    std::vector<std::string> texts(kRows);
    for (std::string& strText : texts) {
        for (int i = 0; i < 12; ++i) {
            strText += static_cast<char>('a' + random() % 26);
        }
    }
    return texts;
}

std::vector<int> RandomNumbers(std::mt19937& random) {
    std::vector<int> numbers(kRows);
    for (int& n : numbers) {
        n = static_cast<int>(random() % 1000000000);
    }
    return numbers;
}

void Add(qv::KeyRanks& keys, const std::string& strText) {
    keys.AddText(strText.c_str());
}

void Add(qv::KeyRanks& keys, int n) {
    keys.AddNumber(static_cast<std::uint32_t>(n));
}

// From the rows' values to the order in which a list shows them; nAgain becomes the time of the
// other direction.
template <class Value>
double Sort(const std::vector<Value>& values, double& nAgain) {
    static const qv::MultiByte s_text;
    std::vector<std::uint32_t> ranks;
    qv::RowPermutation order;
    order.SetCount(values.size());
    const double nTime = bench::Time([&] {
        qv::KeyRanks keys(s_text);
        keys.Reserve(values.size());
        for (const Value& value : values) {
            Add(keys, value);
        }
        ranks = keys.TakeRanks();
        order.Arrange(ranks, true);
    });
    nAgain = bench::Time([&] { order.Arrange(ranks, false); });
    return nTime;
}

}  // namespace

void MeasureVirtualSort() {
    std::mt19937 random(11);
    const std::vector<std::string> texts = RandomTexts(random);
    const std::vector<int> numbers = RandomNumbers(random);
    double nAgain = 0;
    const auto ofTexts = [&] { return Sort(texts, nAgain); };
    const auto ofNumbers = [&] { return Sort(numbers, nAgain); };
#ifdef QV_PEERS
    const auto text = bench::FastestPair(ofTexts, [&] { return qt_peer::SortPlain(texts); });
    const auto number = bench::FastestPair(ofNumbers, [&] { return qt_peer::SortPlain(numbers); });
#else
    const bench::Pair text{bench::MedianOf(ofTexts), 0};
    const bench::Pair number{bench::MedianOf(ofNumbers), 0};
#endif
    bench::Figure("list/virtual-sort-1m-texts", text.ours * 1e3, "ms");
    bench::Figure("list/virtual-sort-1m-numbers", number.ours * 1e3, "ms");
    bench::Figure("list/virtual-sort-1m-other-way", nAgain * 1e3, "ms");
#ifdef QV_PEERS
    const double nProxy = qt_peer::SortByProxy(texts, numbers, true);
    const double nNumberProxy = qt_peer::SortByProxy(texts, numbers, false);
    bench::Figure("qt-list/virtual-sort-1m-texts", text.theirs * 1e3, "ms");
    bench::Figure("qt-list/virtual-sort-1m-numbers", number.theirs * 1e3, "ms");
    bench::Figure("qt-list/virtual-sort-1m-texts-by-proxy", nProxy * 1e3, "ms");
    bench::Figure("qt-list/virtual-sort-1m-numbers-by-proxy", nNumberProxy * 1e3, "ms");
    const double nOurs = text.ours + number.ours;
    bench::Ratio("list/virtual-sort-1m", nOurs, text.theirs + number.theirs);
    bench::Ratio("list/virtual-sort-1m-by-proxy", nOurs, nProxy + nNumberProxy);
#endif
}
