// List boxes in real windows, beside owner-drawn list boxes of the platform in the same process:
// same styles, size, font and stored strings. Nobody subclasses the plain ones; their parent
// answers what they ask.

#include "QVControls.h"
#include "window_bench.h"

#include <cstdlib>

namespace {

using bench::Compare;

constexpr int kRows = 20000;
constexpr int kPageRows = 40;
constexpr int kImages = 4;
constexpr UINT kImageStrip = 30008;  // the library's own check marks
constexpr int kImageWidth = 12;
constexpr COLORREF kImageMask = RGB(0, 128, 128);
constexpr int kStops[] = {150, 20260, 300};
constexpr int kFields = 4;
constexpr int kMargin = 6;
const CSize kWindow(500, 700);

struct Row {
    std::string strText;
    int nImage;
    std::string strBehind;  // stored with the image's number behind the text
    std::string strInFront;
};

const std::vector<Row>& Rows() {
    static const std::vector<Row> s_rows = [] {
        std::vector<Row> rows;
        unsigned nRandom = 7;
        for (int i = 0; i < kRows; ++i) {
            nRandom = nRandom * 1664525 + 1013904223;
            const std::string strNumber = std::to_string(nRandom >> 8);
            Row row{strNumber + " and a name\t" + strNumber + "\tstate\tand some more text",
                    i % kImages, "", ""};
            row.strBehind = row.strText + "\t" + std::to_string(row.nImage);
            row.strInFront = std::to_string(row.nImage) + "\t" + row.strText;
            rows.push_back(row);
        }
        return rows;
    }();
    return s_rows;
}

// How both sides are filled and paged.
class Side {
public:
    virtual ~Side() = default;
    virtual void Add(const Row& row) = 0;

    LRESULT Send(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessage(m_hList, nMessage, wParam, lParam);
    }
    void Fill(int nRows) {
        Send(WM_SETREDRAW, FALSE);
        for (int i = 0; i < nRows; ++i) {
            Add(Rows()[static_cast<size_t>(i)]);
        }
        Send(WM_SETREDRAW, TRUE);
        ::UpdateWindow(m_hList);
    }
    void SetHeightToPage() {
        ::SetWindowPos(m_hList, nullptr, 0, 0, kWindow.cx,
                       kPageRows * static_cast<int>(Send(LB_GETITEMHEIGHT)),
                       SWP_NOMOVE | SWP_NOZORDER);
    }
    double TimePage() {
        constexpr int kPages = 20;
        return bench::Time([&] {
                   for (int i = 0; i < kPages; ++i) {
                       Send(LB_SETTOPINDEX, static_cast<WPARAM>(i % 10 * kPageRows));
                       ::InvalidateRect(m_hList, nullptr, FALSE);
                       ::UpdateWindow(m_hList);
                   }
                   ::GdiFlush();
               }) /
               kPages;
    }

protected:
    HWND m_hList = nullptr;
};

constexpr int kFills = 11;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT |
                         LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS;

class Ours : public Side {
public:
    explicit Ours(DWORD dwStyle = 0, bool bByImage = false) {
        list.Create(kStyle | dwStyle, CRect(CPoint(0, 0), kWindow), &m_frame, 1);
        m_hList = list.m_hWnd;
        list.SortByImageIndex(bByImage);
        list.Initialize(1, kImageStrip, kImageMask, kImageWidth, &m_frame);
        list.UseTabs(kStops, kFields - 1);
    }
    void Add(const Row& row) override { list.AddBitmapString(row.nImage, row.strText.c_str()); }

private:
    bench::Frame m_frame{kWindow};
    QVBitmapListBox list;
};

// Answers and draws for the plain list what ours does, by the wide calls.
class PlainParent : public CWnd {
public:
    PlainParent() {
        m_font.CreatePointFont(90, "Tahoma");
        m_images.Create(kImageStrip, kImageWidth, 0, kImageMask);
        CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE,
                 CRect(CPoint(0, 0), kWindow), nullptr, 0);
    }
    ~PlainParent() override { DestroyWindow(); }

    CFont m_font;
    int m_nHeight = 0;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (nMessage == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = static_cast<UINT>(m_nHeight);
            return TRUE;
        }
        if (nMessage == WM_DRAWITEM) {
            Draw(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        }
        return CWnd::WindowProc(nMessage, wParam, lParam);
    }

private:
    void Draw(const DRAWITEMSTRUCT& draw) {
        wchar_t szRow[256];
        ::SendMessageW(draw.hwndItem, LB_GETTEXT, draw.itemID, reinterpret_cast<LPARAM>(szRow));
        wchar_t* pszNumber = wcsrchr(szRow, L'\t');
        *pszNumber++ = 0;
        RECT rc = draw.rcItem;
        rc.left += kImageWidth;
        FillWith(draw.hDC, rc, ::GetBkColor(draw.hDC));
        const LONG nLeft = rc.left;
        wchar_t* pszField = szRow;
        for (int i = 0; i < kFields && pszField != nullptr; ++i) {
            wchar_t* pszTab = wcschr(pszField, L'\t');
            const int nLength = pszTab != nullptr ? static_cast<int>(pszTab - pszField) : -1;
            RECT rcField = rc;
            rcField.left = nLeft + (i > 0 ? kStops[i - 1] % 10000 : 0) + kMargin;
            rcField.right =
                (i < kFields - 1 ? nLeft + kStops[i] % 10000 : draw.rcItem.right) - kMargin;
            const UINT nFormat = i > 0 && kStops[i - 1] >= 20000 ? DT_RIGHT : DT_LEFT;
            ::DrawTextW(draw.hDC, pszField, nLength, &rcField,
                        nFormat | DT_NOPREFIX | DT_END_ELLIPSIS);
            pszField = pszTab != nullptr ? pszTab + 1 : nullptr;
        }
        rc = draw.rcItem;
        rc.right = kImageWidth + 2;
        FillWith(draw.hDC, rc, ::GetBkColor(draw.hDC));
        ::ImageList_Draw(m_images, _wtoi(pszNumber), draw.hDC, rc.left + 1, rc.top + 1, ILD_NORMAL);
    }
    static void FillWith(HDC hDC, const RECT& rc, COLORREF cr) {
        const HBRUSH hBrush = ::CreateSolidBrush(cr);
        ::FillRect(hDC, &rc, hBrush);
        ::DeleteObject(hBrush);
    }

    CImageList m_images;
};

class Theirs : public Side {
public:
    explicit Theirs(DWORD dwStyle = 0, bool bByImage = false) : m_bByImage(bByImage) {
        LOGFONT log;
        m_parent.m_font.GetLogFont(&log);
        m_parent.m_nHeight = std::max(std::abs(log.lfHeight), static_cast<LONG>(kImageWidth)) + 2;
        m_hList = ::CreateWindowEx(0, "LISTBOX", "", kStyle | dwStyle, 0, 0, kWindow.cx, kWindow.cy,
                                   m_parent.m_hWnd, reinterpret_cast<HMENU>(1), nullptr, nullptr);
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(m_parent.m_font.GetSafeHandle()));
    }
    void Add(const Row& row) override {
        Send(LB_ADDSTRING, 0,
             reinterpret_cast<LPARAM>((m_bByImage ? row.strInFront : row.strBehind).c_str()));
    }

private:
    PlainParent m_parent;
    const bool m_bByImage;
};

// The platform's list that draws tab stops by itself, without images and alignment.
class Stops : public Side {
public:
    Stops() {
        m_hList = ::CreateWindowEx(
            0, "LISTBOX", "",
            WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS, 0, 0,
            kWindow.cx, kWindow.cy, m_frame.m_hWnd, reinterpret_cast<HMENU>(1), nullptr, nullptr);
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(m_frame.m_font.GetSafeHandle()));
        int stops[] = {90, 150, 200};  // dialog units
        Send(LB_SETTABSTOPS, std::size(stops), reinterpret_cast<LPARAM>(stops));
    }
    void Add(const Row& row) override {
        Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.strText.c_str()));
    }

private:
    bench::Frame m_frame{kWindow};
};

template <class Any>
double TimeFill(DWORD dwStyle, bool bByImage) {
    Any side(dwStyle, bByImage);
    return bench::Time([&] { side.Fill(kRows); });
}

void MeasureFill(const char* pszName, DWORD dwStyle, bool bByImage) {
    Compare(pszName, 1e3, "ms",
            bench::FastestPair([&] { return TimeFill<Ours>(dwStyle, bByImage); },
                               [&] { return TimeFill<Theirs>(dwStyle, bByImage); }, kFills));
}

void MeasurePaint() {
    constexpr int kFilled = 1000;
    Ours ours;
    Theirs theirs;
    Stops stops;
    for (Side* pSide :
         {static_cast<Side*>(&ours), static_cast<Side*>(&theirs), static_cast<Side*>(&stops)}) {
        pSide->Fill(kFilled);
        pSide->SetHeightToPage();
        pSide->TimePage();
    }
    Compare("boxes/list-paint-page", 1e3, "ms",
            bench::FastestPair([&] { return ours.TimePage(); }, [&] { return theirs.TimePage(); }));
    bench::Figure("platform-boxes/list-paint-page-tab-stops",
                  bench::MedianOf([&] { return stops.TimePage(); }) * 1e3, "ms");
}

}  // namespace

void MeasureListBox() {
    MeasureFill("boxes/list-fill-20k", 0, false);
    MeasureFill("boxes/list-sorted-20k", LBS_SORT, false);
    MeasureFill("boxes/list-sorted-20k-by-image", LBS_SORT, true);
    MeasurePaint();
}
