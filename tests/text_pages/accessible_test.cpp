// What a screen reader hears of a text in the process's code page.
#include "page_text.h"
#include "support/list_window.h"

#include <gtest/gtest.h>
#include <oleacc.h>

namespace {

using TextCall = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

std::wstring Heard(CWnd& wnd, long nPart, TextCall call = &IAccessible::get_accName) {
    IAccessible* pObject = nullptr;
    if (FAILED(::AccessibleObjectFromWindow(wnd.m_hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                            __uuidof(IAccessible),
                                            reinterpret_cast<void**>(&pObject)))) {
        return L"nothing";
    }
    VARIANT part{};
    part.vt = VT_I4;
    part.lVal = nPart;
    BSTR bstr = nullptr;
    (pObject->*call)(part, &bstr);
    pObject->Release();
    const std::wstring strHeard(bstr != nullptr ? bstr : L"");
    ::SysFreeString(bstr);
    return strHeard;
}

TEST(AccessibleText, IsHeardWholeInEveryCodePage) {
    TreeWindow<> t;
    ListWindow<> l;
    for (const PageWord& word : PageWords()) {
        const HTREEITEM h = t.Add((word.str + "\t" + word.str).c_str());
        EXPECT_EQ(Heard(t.tree, t.tree.GetItemPart(h)), word.strWide + L", " + word.strWide);
        t.tree.SetWindowText(("&" + word.str).c_str());
        EXPECT_EQ(Heard(t.tree, CHILDID_SELF), word.strWide);

        l.list.DeleteAllItems();
        l.list.ClearHeaders();
        l.list.AddHeader(("x\t" + word.str).c_str());
        l.Add((word.str + "\t" + word.str).c_str());
        EXPECT_EQ(Heard(l.list, 1), word.strWide);
        EXPECT_EQ(Heard(l.list, 1, &IAccessible::get_accDescription),
                  word.strWide + L": " + word.strWide);
    }
}

}  // namespace
