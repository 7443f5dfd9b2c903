// Arrays, lists and maps.
#include <afxcoll.h>

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

std::string Show(const CStringArray& array) {
    std::string strShown;
    for (INT_PTR i = 0; i < array.GetSize(); ++i) {
        strShown += std::string(array[i]) + ",";
    }
    return strShown;
}

/// "0,1,2,", with no room for more.
void Fill(CStringArray& array) {
    for (const char* psz : {"0", "1", "2"}) {
        array.Add(psz);
    }
    array.FreeExtra();
}

TEST(Array, GrowsWithNewElementsZero) {
    CDWordArray numbers;
    numbers.Add(7);
    numbers.SetSize(3);
    numbers.SetAtGrow(5, 9);
    numbers.InsertAt(8, 1, 2);
    EXPECT_EQ(std::vector<DWORD>(numbers.GetData(), numbers.GetData() + numbers.GetSize()),
              (std::vector<DWORD>{7, 0, 0, 0, 0, 9, 0, 0, 1, 1}));
    numbers.SetSize(1);
    numbers.SetSize(6);
    EXPECT_EQ(numbers[5], 0u) << "what was cut off does not come back";
}

TEST(Array, ElementsMayBeCopiesOfItsOwn) {
    const struct {
        std::function<void(CStringArray&)> change;
        const char* pszResult;
    } cases[] = {{[](CStringArray& a) { a.Add(a[0]); }, "0,1,2,0,"},
                 {[](CStringArray& a) { a.SetAt(1, a[1]); }, "0,1,2,"},
                 {[](CStringArray& a) { a.SetAtGrow(4, a[1]); }, "0,1,2,,1,"},
                 {[](CStringArray& a) { a.InsertAt(0, a[2], 3); }, "2,2,2,0,1,2,"},
                 {[](CStringArray& a) { a.InsertAt(1, &a); }, "0,0,1,2,1,2,"},
                 {[](CStringArray& a) { a.InsertAt(4, &a); }, "0,1,2,,0,1,2,"},
                 {[](CStringArray& a) { EXPECT_EQ(a.Append(a), 3); }, "0,1,2,0,1,2,"},
                 {[](CStringArray& a) { a.Copy(a); }, "0,1,2,"},
                 {[](CStringArray& a) { a.RemoveAt(3, 0); }, "0,1,2,"},
                 {[](CStringArray& a) { a.RemoveAt(0, 2); }, "2,"}};
    for (const auto& [change, pszResult] : cases) {
        CStringArray array;
        Fill(array);
        change(array);
        EXPECT_EQ(Show(array), pszResult);
    }
}

TEST(Array, IndicesThatAreNoneAreRefused) {
    CStringArray array;
    Fill(array);
    for (const INT_PTR nIndex : {INT_PTR{-1}, INT_PTR{3}, INTPTR_MAX}) {
        EXPECT_THROW(array.GetAt(nIndex), CInvalidArgException*);
        EXPECT_THROW(array.SetAt(nIndex, "x"), CInvalidArgException*);
        EXPECT_THROW(array.RemoveAt(nIndex), CInvalidArgException*);
        EXPECT_THROW(array.RemoveAt(1, nIndex), CInvalidArgException*);
    }
    EXPECT_THROW(array.SetSize(-1), CInvalidArgException*);
    EXPECT_THROW(array.SetAtGrow(-1, "x"), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(-1, "x"), CInvalidArgException*);
    EXPECT_EQ(Show(array), "0,1,2,");
}

TEST(List, KeepsPlacesWhileOthersComeAndGo) {
    CStringList list;
    EXPECT_THROW(list.RemoveHead(), CInvalidArgException*);
    const POSITION pos = list.AddTail("b");
    list.InsertAfter(pos, "d");
    list.InsertBefore(list.Find("d"), "c");
    list.InsertBefore(nullptr, "a");
    list.InsertAfter(nullptr, "last");
    EXPECT_EQ(list.Find("a", list.GetHeadPosition()), nullptr);
    EXPECT_EQ(list.FindIndex(1), pos);
    EXPECT_EQ(list.FindIndex(5), nullptr);
    list.RemoveAt(list.Find("c"));
    std::string strBackwards;
    for (POSITION previous = list.GetTailPosition(); previous != nullptr;) {
        strBackwards += list.GetPrev(previous);
    }
    EXPECT_EQ(strBackwards, "lastdba");
}

TEST(Map, IsWalkedWhileWhatWasGivenGoes) {
    constexpr int kCount = 200;
    CMap<int, int, int, int> map;
    for (int i = 0; i < kCount; ++i) {
        map.SetAt(i, -i);
    }
    std::set<int> seen;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
        int nKey = 0;
        int nValue = 0;
        map.GetNextAssoc(pos, nKey, nValue);
        EXPECT_EQ(nValue, -nKey);
        seen.insert(nKey);
        if (nKey % 2 == 0) {
            map.RemoveKey(nKey);
        }
    }
    EXPECT_EQ(seen.size(), size_t{kCount});
    EXPECT_EQ(map.GetCount(), kCount / 2);
}

/// A key whose numbers collide.
struct Odd {
    int n = 0;
    bool operator==(const Odd& odd) const { return n == odd.n; }
};

}  // namespace

template <>
UINT HashKey<const Odd&>(const Odd& odd) {
    return static_cast<UINT>(odd.n % 3);
}

namespace {

TEST(Map, KeepsWhatAMapOfTheLanguageKeeps) {
    std::map<int, int> plain;
    CMap<Odd, const Odd&, int, int> map;
    unsigned nSeed = 7;
    const auto random = [&](int nMost) {
        nSeed = nSeed * 1103515245 + 12345;
        return static_cast<int>(nSeed >> 16) % nMost;
    };
    for (int i = 0; i < 3000; ++i) {
        const Odd key{random(100)};
        switch (random(4)) {
            case 0:
                EXPECT_EQ(map.RemoveKey(key) != FALSE, plain.erase(key.n) > 0);
                break;
            case 1:
                map[key] += i, plain[key.n] += i;
                break;
            default:
                map.SetAt(key, i), plain[key.n] = i;
        }
        int nValue = -1;
        const auto it = plain.find(key.n);
        ASSERT_EQ(map.Lookup(key, nValue) != FALSE, it != plain.end());
        ASSERT_TRUE(it == plain.end() || it->second == nValue);
    }
    std::map<int, int> walked;
    for (const auto* p = map.PGetFirstAssoc(); p != nullptr; p = map.PGetNextAssoc(p)) {
        walked[p->key.n] = p->value;
    }
    EXPECT_EQ(walked, plain);
}

}  // namespace
