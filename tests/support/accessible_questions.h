// What a screen reader asks a control: from another program, as such a reader does, and, with
// anything in any order, from this one.
#pragma once

#include "support/monkey.h"
#include "support/mortal.h"
#include "support/pump.h"
#include "support/screen_reader.h"
#include "support/tree_window.h"

#include <gtest/gtest.h>
#include <memory>
#include <oleacc.h>
#include <string>

inline constexpr char kGone[] = "0x800401FD";     // CO_E_OBJNOTCONNECTED
inline constexpr char kInvalid[] = "0x80070057";  // E_INVALIDARG
inline constexpr char kNoDeed[] = "0x80020003";   // DISP_E_MEMBERNOTFOUND
inline constexpr char kDone[] = "0x00000000";

struct Question {
    std::string strAsked, strAnswer;
};

/// A screen reader in another process, one for all tests of a suite.
class Accessible : public testing::Test {
protected:
    static void SetUpTestSuite() { s_pReader = std::make_unique<ScreenReader>(); }
    static void TearDownTestSuite() { s_pReader.reset(); }
    static std::string Ask(const std::string& str) { return s_pReader->Ask(str); }
    static void Watch(CWnd& wnd) { Watch(wnd.m_hWnd); }
    // Events from before, which may be on their way still, are over.
    static void Watch(HWND hWnd) {
        ASSERT_EQ(s_pReader->Watch(hWnd), kDone);
        Ask("heard");
    }
    static void Expect(std::initializer_list<Question> questions) {
        for (const Question& question : questions) {
            EXPECT_EQ(Ask(question.strAsked), question.strAnswer) << question.strAsked;
        }
    }
    // Where a point of a window's client area is on the screen, in words.
    static std::string OnScreen(CWnd& wnd, CPoint pt) {
        wnd.ClientToScreen(&pt);
        return std::to_string(pt.x) + ' ' + std::to_string(pt.y);
    }

    static inline std::unique_ptr<ScreenReader> s_pReader;
};

/// Every call with a wild part: nothing may be thrown, and no answer may be given for one that is
/// not there.
inline void AskAnything(IAccessible& object, long nPart, int n) {
    VARIANT part{};
    part.vt = static_cast<VARTYPE>(n % 11 == 0 ? VT_BSTR : VT_I4);
    part.lVal = part.vt == VT_I4 ? nPart : 0;
    VARIANT found{};
    BSTR bstr = nullptr;
    long a[4];
    IDispatch* pChild = nullptr;
    HRESULT(STDMETHODCALLTYPE IAccessible::*const texts[])
    (VARIANT, BSTR*) = {&IAccessible::get_accName,        &IAccessible::get_accValue,
                        &IAccessible::get_accDescription, &IAccessible::get_accKeyboardShortcut,
                        &IAccessible::get_accHelp,        &IAccessible::get_accDefaultAction};
    for (const auto text : texts) {
        EXPECT_EQ((object.*text)(part, nullptr), E_POINTER);
        (object.*text)(part, &bstr);
        ::SysFreeString(bstr);
    }
    const HRESULT hr = object.get_accRole(part, &found);
    EXPECT_TRUE(SUCCEEDED(hr) || found.vt == VT_EMPTY);
    EXPECT_EQ(object.get_accState(part, &found), hr);
    object.accLocation(&a[0], &a[1], &a[2], &a[3], part);
    object.accNavigate(n, part, &found);
    ::VariantClear(&found);
    if (SUCCEEDED(object.get_accChild(part, &pChild)) && pChild != nullptr) {
        pChild->Release();
    }
    object.accHitTest(n * 9, nPart, &found);
    ::VariantClear(&found);
    if (object.get_accSelection(&found) == S_OK && found.vt == VT_UNKNOWN) {
        IEnumVARIANT* pEnum = nullptr;
        found.punkVal->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&pEnum));
        VARIANT some[5];
        ULONG nGot = 0;
        pEnum->Skip(static_cast<ULONG>(n & 3));
        pEnum->Next(5, some, &nGot);
        pEnum->Release();
    }
    ::VariantClear(&found);
    object.put_accValue(part, nullptr);
    object.accSelect(n & 31, part);
    object.accDoDefaultAction(part);
}

/// Plays AskAnything on controls that make(control, parent) sets up, while the parent takes them
/// away in what they tell it, and change(control, n) changes what there is to ask about.
template <class Control, class Make>
void PlayAccessible(Make make, std::function<void(Control&, int)> change = {}, int nLeast = 1000) {
    FontParent parent(CSize(300, 200));
    parent.ShowWindow(SW_HIDE);  // what is painted is not the matter
    std::unique_ptr<Mortal<Control>> control;
    int nTold = 0;
    int nMade = 0;
    bool bMaking = false;
    const auto told = [&] {
        if (!bMaking && control != nullptr && ++nTold % 15 == 0) {
            nTold % 30 == 0 ? control.reset() : void(control->DestroyWindow());
        }
        return false;
    };
    parent.m_hook = [&](NMHDR*, LRESULT*) { return told(); };
    parent.m_onMessage = [&](UINT nMessage, WPARAM) { return nMessage == WM_COMMAND && told(); };
    IAccessible* pObject = nullptr;
    const auto release = [&] {
        pObject != nullptr ? void(pObject->Release()) : void();
        pObject = nullptr;
    };
    const std::function<void()> again = [&] {
        release();
        bMaking = true;
        control = std::make_unique<Mortal<Control>>();
        make(*control, parent);
        bMaking = false;
        if (++nMade % 4 != 0) {
            return;  // most go unasked, as on most machines: an object costs more than a control
        }
        ::AccessibleObjectFromWindow(control->m_hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&pObject));
    };
    PlayInAnyOrder<Mortal<Control>>(
        control, again,
        {[&](int n) { pObject != nullptr ? AskAnything(*pObject, n, n + 5) : void(); },
         [&](int n) { pObject != nullptr ? AskAnything(*pObject, n % 6, n) : void(); },
         [&](int n) { pObject != nullptr ? AskAnything(*pObject, n << 25, n) : void(); },
         [&](int n) {
             bMaking = true;
             n % 5 == 0 ? control.reset() : void();
             bMaking = false;
         },
         [&](int n) { change&& control != nullptr ? change(*control, n) : void(); }},
        nLeast);
    release();
}
