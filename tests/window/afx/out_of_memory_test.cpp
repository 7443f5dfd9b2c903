// Values and collections without memory: the framework's exception, and everything as it was.
#include "window/refusals.h"

#include <afxcoll.h>
#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

/// Has the change made to a fresh object again and again, each allocation refused once. A refusal
/// must come out as the framework's exception and leave what show() tells as it was; unless the
/// change can do without the memory it asked for.
template <class Object>
void RefuseInChange(const char* pszName, const std::function<void(Object&)>& prepare,
                    const std::function<std::string(const Object&)>& show,
                    const std::function<void(Object&)>& change) {
    SCOPED_TRACE(pszName);
    const auto make = [&] {
        auto pObject = std::make_unique<Object>();
        prepare(*pObject);
        return pObject;
    };
    auto pObject = make();
    const std::string strBefore = show(*pObject);
    std::string strAfter;
    Outcome outcome = Outcome::kDone;
    const int nRefused = RefuseEachAllocation(
        FailingHeap::kJustOne, [&] { outcome = Try([&] { change(*pObject); }); },
        [&](int nSucceeding) {
            EXPECT_NE(Outcome::kOther, outcome);
            strAfter = show(*pObject);
            EXPECT_TRUE(outcome == Outcome::kDone || strAfter == strBefore) << nSucceeding;
            pObject = make();
        });
    EXPECT_GT(nRefused, 0) << "it asked for nothing";
    EXPECT_EQ(Outcome::kDone, outcome);
    EXPECT_NE(strBefore, strAfter) << "it did nothing";
}

constexpr char kLong[] = "a text that is longer than what any string keeps in itself";

struct StringChange {
    const char* pszName;
    void (*pfnChange)(CString&);
};
const StringChange kStringChanges[] = {
    {"=", [](CString& s) { s = kLong; }},
    {"= wide",
     [](CString& s) { s = L"another text that is as long as the first one was, or longer"; }},
    {"+", [](CString& s) { s = s + kLong + CString(s); }},
    {"Insert", [](CString& s) { s.Insert(3, kLong); }},
    {"Replace", [](CString& s) { s.Replace("t", kLong); }},
    {"Format", [](CString& s) { s.Format("%s %s", kLong, kLong); }},
    {"LoadString", [](CString& s) { s.LoadString(AFX_IDP_PARSE_INT); }},
    {"SetAt",
     [](CString& s) {
         CString copy(s);
         s.SetAt(0, 'x');
     }},
    {"GetBuffer", [](CString& s) {
         lstrcpy(s.GetBuffer(500), "x");
         s.ReleaseBuffer();
     }}};

TEST(OutOfMemory, AStringKeepsItsText) {
    for (const StringChange& change : kStringChanges) {
        RefuseInChange<CString>(
            change.pszName, [](CString& s) { s = "the text before"; },
            [](const CString& s) { return std::string(s); }, change.pfnChange);
    }
}

/// Copying one takes memory, with the language's exception where there is none.
using StdArray = CArray<std::string>;
const std::string kOwnLong(kLong);

/// "1" and a long text.
StdArray& Two() {
    static StdArray s_two;
    if (s_two.IsEmpty()) {
        s_two.Add("1");
        s_two.Add(kOwnLong);
    }
    return s_two;
}

const struct {
    const char* pszName;
    void (*pfnChange)(StdArray&);
} kArrayChanges[] = {{"Add", [](StdArray& a) { a.Add(kOwnLong); }},
                     {"SetAt", [](StdArray& a) { a.SetAt(1, kOwnLong); }},
                     {"SetAtGrow", [](StdArray& a) { a.SetAtGrow(7, kOwnLong); }},
                     {"SetSize", [](StdArray& a) { a.SetSize(50, 10); }},
                     {"InsertAt", [](StdArray& a) { a.InsertAt(1, kOwnLong, 5); }},
                     {"InsertAt of an array", [](StdArray& a) { a.InsertAt(1, &Two()); }},
                     {"Append itself", [](StdArray& a) { a.Append(a); }},
                     {"Copy", [](StdArray& a) { a.Copy(Two()); }}};

TEST(OutOfMemory, AnArrayKeepsItsElements) {
    Two();  // made with memory
    for (const auto& [pszName, pfnChange] : kArrayChanges) {
        RefuseInChange<StdArray>(
            pszName,
            [](StdArray& a) {
                a.Add("one");
                a.Add("two");
                a.Add("three");
            },
            [](const StdArray& a) {
                std::string strShown;
                for (INT_PTR i = 0; i < a.GetSize(); ++i) {
                    strShown += a[i] + ",";
                }
                return strShown;
            },
            pfnChange);
    }
}

TEST(OutOfMemory, AnAbsurdSizeIsAMatterOfMemory) {
    CByteArray bytes;
    EXPECT_EQ(Outcome::kMemoryException, Try([&] { bytes.SetSize(INTPTR_MAX); }));
    EXPECT_EQ(0, bytes.GetSize());
}

}  // namespace
