// What a screen reader hears of a text in the process's code page.
#include "page_text.h"
#include "support/box_window.h"
#include "support/grid_window.h"
#include "support/list_window.h"
#include "support/text_window.h"

#include <gtest/gtest.h>
#include <oleacc.h>

namespace {

using TextCall = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

IAccessible* ObjectOf(CWnd& wnd) {
    IAccessible* pObject = nullptr;
    ::AccessibleObjectFromWindow(wnd.m_hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                 __uuidof(IAccessible), reinterpret_cast<void**>(&pObject));
    return pObject;
}

VARIANT PartOf(long nPart) {
    VARIANT part{};
    part.vt = VT_I4;
    part.lVal = nPart;
    return part;
}

std::wstring Heard(CWnd& wnd, long nPart, TextCall call = &IAccessible::get_accName) {
    IAccessible* const pObject = ObjectOf(wnd);
    if (pObject == nullptr) {
        return L"nothing";
    }
    BSTR bstr = nullptr;
    (pObject->*call)(PartOf(nPart), &bstr);
    pObject->Release();
    const std::wstring strHeard(bstr != nullptr ? bstr : L"");
    ::SysFreeString(bstr);
    return strHeard;
}

void Put(CWnd& wnd, long nPart, const std::wstring& strValue) {
    IAccessible* const pObject = ObjectOf(wnd);
    ASSERT_NE(pObject, nullptr);
    const BSTR bstr = ::SysAllocString(strValue.c_str());
    EXPECT_EQ(pObject->put_accValue(PartOf(nPart), bstr), S_OK);
    ::SysFreeString(bstr);
    pObject->Release();
}

TEST(AccessibleText, IsHeardWholeInEveryCodePage) {
    TreeWindow<> t;
    ListWindow<> l;
    TextWindow<> x;
    QVTextBox box;
    box.Create(5, CRect(0, 0, 50, 20), &x.parent);
    QVMenuButton button;
    button.Create("", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 50, 20), &x.parent, 6);
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

        x.text.ClearTextData();
        x.text.AddText((word.str + "\t" + word.str).c_str(), 0);
        x.text.CalcLayout();
        EXPECT_EQ(Heard(x.text, 1), word.strWide + L", " + word.strWide);
        EXPECT_EQ(Heard(x.text, CHILDID_SELF, &IAccessible::get_accValue),
                  word.strWide + L", " + word.strWide);
        box.SetWindowText(word.str.c_str());
        EXPECT_EQ(Heard(box, CHILDID_SELF), word.strWide);
        button.SetWindowText(("&" + word.str).c_str());
        EXPECT_EQ(Heard(button, CHILDID_SELF), word.strWide);
    }
}

TEST(AccessibleText, OfGridsAndBoxesIsHeardAndPutInEveryCodePage) {
    GridWindow<> g(1);
    BoxWindow<OpenListBox> b;
    BoxWindow<OpenBitmapCombo> c;
    const long nCell = g.grid.GetCellPart(0, kEdit);
    for (const PageWord& word : PageWords()) {
        g.grid.SetAccessibleHeadings(("x\t" + word.str).c_str());
        g.grid.SetCellText(0, kStatic, word.str.c_str());
        EXPECT_EQ(Heard(g.grid, nCell), word.strWide + L", " + word.strWide);
        Put(g.grid, nCell, word.strWide);
        EXPECT_EQ(g.Text(0, kEdit), word.str);
        EXPECT_EQ(Heard(g.grid, nCell, &IAccessible::get_accValue), word.strWide);

        b.box->ResetContent();
        InsertRow(*b.box, 1, 0, (word.str + "\t" + word.str).c_str());
        EXPECT_EQ(Heard(*b.box, 1), word.strWide + L", " + word.strWide);
        c.box->ResetContent();
        InsertRow(*c.box, 1, 0, word.str.c_str());
        c.box->SetCurSel(0);
        EXPECT_EQ(Heard(*c.box, CHILDID_SELF, &IAccessible::get_accValue), word.strWide);
    }
}

}  // namespace
