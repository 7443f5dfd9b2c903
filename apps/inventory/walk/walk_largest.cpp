#include "walk/walk.h"

namespace {

constexpr int kPageLargest = 4;

}  // namespace

bool Walk::LargestHeading(int nCol, LargestList::Order order, const char* pszStation) {
    LargestList& list = m_frame.Largest().List();
    CHeaderCtrl* pHeader =
        static_cast<CHeaderCtrl*>(m_frame.Largest().GetDlgItem(static_cast<int>(list.HeaderID())));
    CRect rc;
    pHeader->GetItemRect(nCol, &rc);
    pHeader->ClientToScreen(&rc);
    LetClickPass();
    Click(rc.CenterPoint());
    return Expect("a click on a heading sorts", [&] { return list.SortOrder() == order; }) &&
           Station(pszStation);
}

bool Walk::LargestPackages() {
    ClickTab(kPageLargest);
    LargestList& list = m_frame.Largest().List();
    if (!Expect("the largest packages come up",
                [&] { return list.IsWindowVisible() && list.GetCount() > 0; })) {
        return false;
    }
    Press(VK_DOWN);
    Press(VK_DOWN, VK_SHIFT);
    Press(VK_DOWN, VK_SHIFT);
    if (!Expect("keys select rows", [&] { return list.GetSelCount() == 3; }) ||
        !Station("largest-1-by-size") ||
        !LargestHeading(0, LargestList::Order::Name, "largest-2-by-name") ||
        !LargestHeading(0, LargestList::Order::State, "largest-3-by-state")) {
        return false;
    }
    return Expect("the selection lives through it", [&] { return list.GetSelCount() == 3; });
}

bool Walk::LargestOnPaper() {
    const CString strFile = m_strFolder + "\\largest.ps";
    if (const Failure pFailure = m_frame.Largest().PrintToFile(strFile)) {
        std::printf("walk: not printed: %s\n", pFailure->Text());
        return true;
    }
    CFileStatus status;
    return Happened("the list comes out of the printer",
                    CFile::GetStatus(strFile, status) != FALSE) &&
           PrintToNamedFile();
}
