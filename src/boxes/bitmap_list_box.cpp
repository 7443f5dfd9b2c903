#include "boxes/bitmap_list_box.h"

#include "boxes/core/box_heights.h"
#include "boxes/core/box_order.h"
#include "boxes/core/box_row.h"
#include "boxes/list_rows.h"
#include "common/process_text.h"
#include "frame/ancestor_font.h"
#include "frame/create_window.h"
#include "frame/image_strip.h"
#include "frame/out_of_memory.h"
#include "frame/saved_rows.h"
#include "frame/text_out.h"

#include <vector>

IMPLEMENT_DYNCREATE(QVBitmapListBox, CListBox)

BEGIN_MESSAGE_MAP(QVBitmapListBox, CListBox)
    ON_WM_SIZE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_RBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_MESSAGE(WM_SETREDRAW, &QVBitmapListBox::OnSetRedraw)
    ON_MESSAGE(WM_GETOBJECT, &QVBitmapListBox::OnGetObject)
END_MESSAGE_MAP()

// --- Set-up

QVBitmapListBox::QVBitmapListBox() : QVAccessible(static_cast<CWnd&>(*this)) {}

QVBitmapListBox::~QVBitmapListBox() {
    if (m_bInHeader && m_header.m_hWnd != nullptr) {
        // The platform's header is at work below, and does not live through its end there.
        m_header.ShowWindow(SW_HIDE);
        ::PostMessage(m_header.UnsubclassWindow(), WM_CLOSE, 0, 0);
    }
    DestroyWindow();
}

BOOL QVBitmapListBox::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = "LISTBOX";
    }
    cs.style |= LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS;
    return CListBox::PreCreateWindow(cs);
}

int QVBitmapListBox::Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int nBitmapWidth,
                                CWnd* pParent) {
    const bool bAttach = m_hWnd == nullptr;
    if (bAttach && !qv::AttachToItem(*this, nID, pParent)) {
        return 0;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    bool bDone = false;
    if (!qv::MemorySuffices([&] { bDone = SetUp(nBitmapID, crMask, nBitmapWidth); }) && watch &&
        bAttach) {
        UnsubclassWindow();
    }
    return bDone;
}

// False if the list is gone.
bool QVBitmapListBox::SetUp(UINT nBitmapID, COLORREF crMask, int nBitmapWidth) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    LoadImages(nBitmapID, crMask, nBitmapWidth);
    qv::TakeNearestFont(*this);
    CalcItemHeight();
    if (m_nHeaderID != 0) {
        CreateHeaders();
    }
    if (watch) {
        CalcListTabs();
    }
    return static_cast<bool>(watch);
}

void QVBitmapListBox::LoadImages(UINT nBitmapID, COLORREF crMask, int nBitmapWidth) {
    CImageList images;
    CSize size(0, 0);
    if (nBitmapWidth > 0 &&
        (!qv::LoadStrip(images, nBitmapID, nBitmapWidth, crMask, size) || size.cy == 0)) {
        return;
    }
    m_imageList.DeleteImageList();
    m_imageList.Attach(images.Detach());
    m_nBitmapWidth = size.cx;
    m_nBitmapHeight = size.cy;
}

void QVBitmapListBox::CalcItemHeight() {
    if (m_nFontHeight == 0) {
        m_nFontHeight = qv::AskedFontHeight(*this);
    }
    m_nItemHeight = qv::BoxHeights{m_nFontHeight, m_nBitmapHeight}.Row();
}

// --- Rows

qv::NumberPlace QVBitmapListBox::Place() const {
    return m_bSortByImageIndex ? qv::NumberPlace::InFront : qv::NumberPlace::Behind;
}

int QVBitmapListBox::AddBitmapString(int nImage, const char* pszText) {
    int nIndex = LB_ERRSPACE;
    qv::MemorySuffices(
        [&] { nIndex = AddString(qv::JoinBoxRow(nImage, qv::OrEmpty(pszText), Place()).c_str()); });
    return nIndex;
}

int QVBitmapListBox::InsertBitmapString(int nImage, int nIndex, const char* pszText) {
    int nInserted = LB_ERRSPACE;
    qv::MemorySuffices([&] {
        nInserted =
            InsertString(nIndex, qv::JoinBoxRow(nImage, qv::OrEmpty(pszText), Place()).c_str());
    });
    return nInserted;
}

int QVBitmapListBox::FindBitmapString(int nImage, const char* pszText) {
    int nFound = LB_ERR;
    qv::MemorySuffices([&] {
        nFound = FindStringExact(-1, qv::JoinBoxRow(nImage, qv::OrEmpty(pszText), Place()).c_str());
    });
    return nFound;
}

// Empty for a row that is none.
CString QVBitmapListBox::Stored(int nIndex) const {
    CString strStored;
    GetText(nIndex, strStored);
    return strStored;
}

// Leaves the text of a stored string; gives the image's number.
int QVBitmapListBox::KeepText(CString& strStored) const {
    const qv::BoxRow row = qv::SplitBoxRow(qv::View(strStored), Place());
    const int nLength = static_cast<int>(row.text.size());
    if (row.text.data() == LPCSTR(strStored)) {
        strStored.GetBuffer(0);
        strStored.ReleaseBuffer(nLength);
    } else {
        strStored = CString(row.text.data(), nLength);
    }
    return row.nNumber;
}

void QVBitmapListBox::ExtractInfo(const char* pszStored, int& nImage, CString& strText) {
    CString strStored(pszStored);
    nImage = KeepText(strStored);
    strText = strStored;
}

int QVBitmapListBox::GetImage(int nIndex) {
    int nImage = -1;
    qv::MemorySuffices([&] {
        const CString strStored = Stored(nIndex);
        if (!strStored.IsEmpty()) {
            nImage = qv::SplitBoxRow(qv::View(strStored), Place()).nNumber;
        }
    });
    return nImage;
}

int QVBitmapListBox::GetItemString(int nIndex, CString& strText) {
    int nRead = 0;
    qv::MemorySuffices([&] {
        CString strStored = Stored(nIndex);
        if (!strStored.IsEmpty()) {
            KeepText(strStored);
            strText = strStored;
            nRead = 1;
        }
    });
    return nRead;
}

int QVBitmapListBox::SetImage(int nIndex, int nImage) {
    int nReplaced = 0;
    qv::MemorySuffices([&] {
        const CString strStored = Stored(nIndex);
        const std::string_view text = qv::SplitBoxRow(qv::View(strStored), Place()).text;
        nReplaced = Replace(nIndex, qv::JoinBoxRow(nImage, text, Place()).c_str());
    });
    return nReplaced;
}

int QVBitmapListBox::SetItemString(int nIndex, const char* pszText) {
    int nReplaced = 0;
    qv::MemorySuffices([&] {
        const CString strStored = Stored(nIndex);
        const int nImage =
            strStored.IsEmpty() ? -1 : qv::SplitBoxRow(qv::View(strStored), Place()).nNumber;
        nReplaced = Replace(nIndex, qv::JoinBoxRow(nImage, qv::OrEmpty(pszText), Place()).c_str());
    });
    return nReplaced;
}

int QVBitmapListBox::Replace(int nIndex, const char* pszStored) {
    if (!HasRow(nIndex)) {
        return 0;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const bool bRedraw = m_bRedraw != 0;
    if (bRedraw) {
        SetRedraw(FALSE);
    }
    const int nCaret = GetCaretIndex();
    bool bReplaced;
    {
        const qv::SetWhileAlive<bool> replacing(m_alive, m_bReplacing, true);
        bReplaced = PutInPlace(nIndex, pszStored);
        if (watch) {
            SetCaretIndex(nCaret, FALSE);
        }
    }
    if (watch && bRedraw) {
        SetRedraw(TRUE);
    }
    if (watch) {
        bReplaced ? TellAccessible(EVENT_OBJECT_NAMECHANGE, nIndex + 1) : TellAccessibleReorder();
    }
    return bReplaced;
}

// The new row comes before the old one goes: without room for it nothing is lost. The parent is
// asked how high the new one is and told that the old one goes; false if it took the list away.
bool QVBitmapListBox::PutInPlace(int nIndex, const char* pszStored) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nCount = GetCount();
    const DWORD_PTR dwData = GetItemData(nIndex);
    const bool bSelected = GetSel(nIndex) > 0;
    const int nNew = InsertString(nIndex, pszStored);
    // Where the parent changed rows meanwhile, nobody knows which one is the old one.
    if (nNew < 0 || !watch || GetCount() != nCount + 1) {
        return false;
    }
    SetItemData(nNew, dwData);
    DeleteString(static_cast<UINT>(nNew) + 1);
    if (watch && bSelected) {
        Select(nNew);
    }
    return static_cast<bool>(watch);
}

// --- Selection

bool QVBitmapListBox::HasSeveralSelected() const {
    return (GetStyle() & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

void QVBitmapListBox::Select(int nIndex) {
    if (HasSeveralSelected()) {
        SetSel(nIndex);
    } else {
        SetCurSel(nIndex);
    }
}

void QVBitmapListBox::SaveSelections() {
    qv::MemorySuffices([&] {
        std::vector<int> rows;
        if (!HasSeveralSelected()) {
            if (const int nRow = GetCurSel(); nRow != LB_ERR) {
                rows.push_back(nRow);
            }
        } else if (const int nSelected = GetSelCount(); nSelected > 0) {
            rows.resize(static_cast<size_t>(nSelected));
            rows.resize(static_cast<size_t>(std::max(GetSelItems(nSelected, rows.data()), 0)));
        }
        m_aSavedSelections.SetSize(static_cast<INT_PTR>(rows.size()));
        for (size_t i = 0; i < rows.size(); ++i) {
            m_aSavedSelections[static_cast<INT_PTR>(i)] = GetItemData(rows[i]);
        }
    });
}

void QVBitmapListBox::RestoreSelections() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::FindSavedRows(
        m_aSavedSelections, GetCount(), [this](int nRow) { return GetItemData(nRow); },
        [&](int nRow) {
            Select(nRow);
            return static_cast<bool>(watch);
        });
}

void QVBitmapListBox::OnRButtonDown(UINT, CPoint point) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    SetFocus();
    if (!watch) {
        return;
    }
    if (const int nRow = qv::ListRowAt(m_hWnd, point); nRow != -1) {
        SelectUnderMouse(nRow);
    }
    if (watch) {
        Default();
    }
}

// The list may be gone afterwards: rows that change are drawn at once, by the parent.
void QVBitmapListBox::SelectUnderMouse(int nRow) {
    if (!HasSeveralSelected()) {
        SetCurSel(nRow);
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (GetSel(nRow) <= 0) {
        SelItemRange(FALSE, 0, GetCount() - 1);
        if (watch) {
            SetSel(nRow);
        }
    }
    if (watch) {
        SetCaretIndex(nRow, FALSE);
    }
}

// --- Order

int QVBitmapListBox::CompareItem(COMPAREITEMSTRUCT* pCompare) {
    int nOrder = 0;
    qv::MemorySuffices([&] {
        CString strText = Stored(static_cast<int>(pCompare->itemID1));
        const int nImage = m_nBitmapWidth > 0 ? KeepText(strText) : 0;
        nOrder = CompareToItem(nImage, strText, static_cast<int>(pCompare->itemID2));
    });
    return nOrder;
}

int QVBitmapListBox::CompareToItem(int nImage, const char* pszText, int nItem) {
    int nOrder = 0;
    qv::MemorySuffices([&] {
        CString strOther;
        int nOther = 0;
        // Without images every row counts as empty: lists are in an order that relies on it.
        if (m_nBitmapWidth > 0) {
            strOther = Stored(nItem);
            nOther = KeepText(strOther);
        }
        nOrder = qv::CompareBoxRows(m_bSortByImageIndex != 0, {nImage, qv::OrEmpty(pszText)},
                                    {nOther, strOther}, [this](const char* psz1, const char* psz2) {
                                        return qv::CompareBoxFields(psz1, psz2, m_aStyles,
                                                                    qv::ProcessText());
                                    });
    });
    return nOrder;
}

// --- Messages

LRESULT QVBitmapListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const bool bWasSelected = SeeMessage(message, lParam);
    const LRESULT lResult = qv::HandleQuietly(
        m_hWnd, message, [&] { return CListBox::WindowProc(message, wParam, lParam); });
    if (watch && !m_bReplacing) {
        TellChange(message, lParam, bWasSelected);
    }
    return lResult;
}

void QVBitmapListBox::OnSize(UINT, int cx, int) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (watch && m_header.m_hWnd != nullptr) {
        FitHeaderToWidth(cx);
    }
}

LRESULT QVBitmapListBox::OnSetRedraw(WPARAM wParam, LPARAM) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    m_bRedraw = wParam != 0;
    if (m_header.m_hWnd != nullptr) {
        m_header.SetRedraw(m_bRedraw);
    }
    return watch ? Default() : 0;
}
