// Sizes and points, spans of time, amounts of money, locks, pictures, and what is exchanged with
// dates and addresses.
#include "support/temp_file.h"
#include "support/test_app.h"

#include <afxdtctl.h>
#include <afxmt.h>
#include <atlimage.h>

#include <gtest/gtest.h>
#include <thread>

namespace {

TEST(Values, PointsSizesAndRectanglesAddUp) {
    const CPoint pt(10, 20);
    const CSize size(1, 2);
    CRect rect(0, 0, 5, 5);
    EXPECT_EQ(size + pt, CPoint(11, 22));
    EXPECT_EQ(size - pt, CPoint(-9, -18));
    EXPECT_EQ(pt + static_cast<LPCRECT>(rect), CRect(10, 20, 15, 25));
    EXPECT_EQ(size - static_cast<LPCRECT>(rect), CRect(-1, -2, 4, 3));
    EXPECT_EQ(rect + static_cast<LPCRECT>(CRect(1, 2, 3, 4)), CRect(-1, -2, 8, 9));
    rect -= static_cast<LPCRECT>(CRect(1, 1, 1, 1));
    EXPECT_EQ(rect, CRect(1, 1, 4, 4));
    EXPECT_EQ(min(3, 4L) + max(2.5, 1), 5.5) << "of any numbers";
}

TEST(Values, SpansAndAmountsAreShownByTheirCodes) {
    EXPECT_EQ(CTimeSpan(400, 5, 6, 7).Format("%D d %H:%M:%S 100%%"), "400 d 05:06:07 100%");
    EXPECT_EQ(CTimeSpan(1).Format("%Y"), "") << "no such code";
    EXPECT_EQ(CTime(0).FormatGmt("%Y-%m-%d %H"), "1970-01-01 00");

    COleCurrency sum(12, 3400);
    sum += COleCurrency(-1, 0);
    EXPECT_TRUE(COleCurrency(11, 3400) == sum);
    EXPECT_EQ((sum * 2 / 4).m_cur.int64, 56700);
    EXPECT_EQ((sum / 0).GetStatus(), COleCurrency::invalid);
    CURRENCY most;
    most.int64 = LLONG_MAX;
    EXPECT_EQ((COleCurrency(most) + sum).GetStatus(), COleCurrency::invalid);
    COleCurrency read;
    EXPECT_TRUE(read.ParseCurrency(sum.Format()));
    EXPECT_TRUE(read == sum);
    EXPECT_FALSE(read.ParseCurrency("none"));
}

TEST(Locks, KeepOtherThreadsOut) {
    CMutex mutex;
    CSemaphore semaphore(0, 2);
    CEvent event(FALSE, TRUE);
    CCriticalSection section;
    const auto inOther = [](auto action) {
        bool bDone = false;
        std::thread([&] { bDone = action(); }).join();
        return bDone;
    };
    {
        CSingleLock lock(&mutex, TRUE);
        EXPECT_FALSE(inOther([&] { return mutex.Lock(0) != FALSE; }));
    }
    EXPECT_TRUE(inOther([&] { return mutex.Lock(0) && mutex.Unlock(); })) << "at the block's end";
    {
        CSingleLock lock(&section, TRUE);
        EXPECT_FALSE(inOther([&] { return ::TryEnterCriticalSection(section) != FALSE; }));
    }
    CSyncObject* objects[] = {&mutex, &semaphore, &event};
    CMultiLock all(objects, 3);
    EXPECT_EQ(all.Lock(0), DWORD{WAIT_TIMEOUT});
    EXPECT_EQ(all.Lock(0, FALSE), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(all.IsLocked(0) && !all.IsLocked(1));
    EXPECT_TRUE(all.Unlock());
    semaphore.Unlock();
    event.SetEvent();
    EXPECT_EQ(all.Lock(0), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(all.IsLocked(1) && all.IsLocked(2));
}

TEST(Image, KeepsItsPixelsInFiles) {
    for (const char* pszEnd : {".png", ".bmp"}) {
        const TempFile temp;
        const CString strPath = CString(temp.Path()) + pszEnd;
        CImage image;
        ASSERT_TRUE(image.Create(5, 3, 24));
        image.SetPixel(0, 0, RGB(200, 10, 20));
        image.SetPixel(4, 2, RGB(1, 2, 3));
        EXPECT_EQ(static_cast<BYTE*>(image.GetPixelAddress(4, 2))[0], 3) << "the blue one";
        ASSERT_EQ(image.Save(strPath), S_OK);
        CImage again;
        ASSERT_EQ(again.Load(strPath), S_OK);
        EXPECT_EQ(again.GetWidth() * 10 + again.GetHeight(), 53);
        EXPECT_EQ(again.GetPixel(0, 0), RGB(200, 10, 20));
        CImage other;
        other.Create(10, 6, 32);
        EXPECT_TRUE(again.StretchBlt(other.GetDC(), 0, 0, 10, 6));
        other.ReleaseDC();
        EXPECT_EQ(other.GetPixel(9, 5), RGB(1, 2, 3));
        CFile::Remove(strPath);
        EXPECT_TRUE(FAILED(again.Load(strPath)));
        EXPECT_TRUE(again.IsNull());
    }
    CImage clear;
    ASSERT_TRUE(clear.Create(2, 2, 32, CImage::createAlphaChannel));
    *static_cast<DWORD*>(clear.GetPixelAddress(1, 0)) = 0x80000080;  // half of the blue
    const TempFile temp;
    ASSERT_EQ(clear.Save(CString(temp.Path()) + ".png"), S_OK);
    CImage again;
    ASSERT_EQ(again.Load(CString(temp.Path()) + ".png"), S_OK);
    EXPECT_TRUE(again.HasAlpha());
    EXPECT_EQ(*static_cast<DWORD*>(again.GetPixelAddress(1, 0)), 0x80000080u);
    EXPECT_EQ(*static_cast<DWORD*>(again.GetPixelAddress(0, 0)), 0u);
    EXPECT_EQ(again.Save("x.none"), E_INVALIDARG);
    CFile::Remove(CString(temp.Path()) + ".png");
}

TEST(Exchange, TakesDatesAmountsAndAddresses) {
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW,
                             CRect(0, 0, 500, 400), nullptr, 0));
    CDateTimeCtrl picker;
    CMonthCalCtrl calendar;
    CIPAddressCtrl address;
    CEdit edit;
    const DWORD dwStyle = WS_CHILD | WS_VISIBLE;
    ASSERT_TRUE(picker.Create(dwStyle, CRect(0, 0, 100, 20), &wnd, 1));
    ASSERT_TRUE(calendar.Create(dwStyle, CPoint(0, 30), &wnd, 2));
    ASSERT_TRUE(address.Create(dwStyle, CRect(120, 0, 300, 20), &wnd, 3));
    ASSERT_TRUE(edit.Create(dwStyle, CRect(320, 0, 400, 20), &wnd, 4));
    CTime picked(2024, 2, 29, 12, 30, 0);
    COleDateTime shown(2023, 5, 6, 0, 0, 0);
    COleCurrency amount(3, 5000);
    DWORD dwAddress = 0x7F000001;
    ULONGLONG nBig = ULLONG_MAX;
    TCHAR szText[4] = "abc";
    const auto exchange = [&](BOOL bSave) {
        CDataExchange dx(&wnd, bSave);
        DDX_DateTimeCtrl(&dx, 1, picked);
        DDX_MonthCalCtrl(&dx, 2, shown);
        DDX_IPAddress(&dx, 3, dwAddress);
        const CTime first(2020, 1, 1, 0, 0, 0);
        DDX_DateTimeCtrl(&dx, 1, picked);
        DDV_MinMaxDateTime(&dx, picked, &first, nullptr);
    };
    exchange(FALSE);
    BYTE fields[4];
    address.GetAddress(fields[0], fields[1], fields[2], fields[3]);
    EXPECT_EQ(fields[0] * 10 + fields[3], 1271);
    picked = CTime(0);
    shown = COleDateTime();
    dwAddress = 0;
    exchange(TRUE);
    EXPECT_EQ(picked.Format("%Y-%m-%d %H:%M"), "2024-02-29 12:30");
    EXPECT_EQ(shown.Format("%Y-%m-%d"), "2023-05-06");
    EXPECT_EQ(dwAddress, 0x7F000001u);
    CTime bound;
    EXPECT_EQ(picker.GetRange(&bound, nullptr), DWORD{GDTR_MIN}) << "the control keeps to it";
    picked = CTime(2001, 1, 1, 0, 0, 0);
    TheTestApp().Forget();
    CDataExchange dx(&wnd, TRUE);
    EXPECT_THROW(DDV_MinMaxDateTime(&dx, picked, &bound, nullptr), CUserException*);
    EXPECT_EQ(TheTestApp().m_prompts.size(), 1u);

    const auto inEdit = [&](auto action) {
        for (const BOOL bSave : {FALSE, TRUE}) {
            CDataExchange pass(&wnd, bSave);
            action(&pass);
        }
    };
    inEdit([&](CDataExchange* pDX) { DDX_Text(pDX, 4, amount); });
    EXPECT_TRUE(amount == COleCurrency(3, 5000));
    inEdit([&](CDataExchange* pDX) { DDX_Text(pDX, 4, nBig); });
    EXPECT_EQ(nBig, ULLONG_MAX);
    CDataExchange last(&wnd, TRUE);
    edit.SetWindowText("longer");
    DDX_Text(&last, 4, szText, 4);
    EXPECT_STREQ(szText, "lon");
    edit.SetWindowText("-1");
    EXPECT_THROW(DDX_Text(&last, 4, nBig), CUserException*);
    TheTestApp().Forget();
    wnd.DestroyWindow();
}

TEST(RichEdit, HasFormatsAndRanges) {
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW,
                             CRect(0, 0, 500, 400), nullptr, 0));
    CRichEditCtrl edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 300, 200), &wnd, 1));
    edit.SetWindowText("one two three");
    edit.SetSel(4, 7);
    EXPECT_EQ(edit.GetSelText(), "two");
    EXPECT_EQ(edit.GetTextRange(8, -1), "three");
    CHARFORMAT format = {};
    format.dwMask = CFM_ITALIC;
    format.dwEffects = CFE_ITALIC;
    EXPECT_TRUE(edit.SetSelectionCharFormat(format));
    edit.SetSel(0, 3);
    CHARFORMAT read = {};
    edit.GetSelectionCharFormat(read);
    EXPECT_FALSE(read.dwEffects & CFE_ITALIC);
    edit.SetSel(5, 6);
    edit.GetSelectionCharFormat(read);
    EXPECT_TRUE(read.dwEffects & CFE_ITALIC);
    wnd.DestroyWindow();
}

}  // namespace
