#include "compare/comparison_document.h"

#include "main_frame.h"
#include "opening.h"
#include "resource.h"

#include <algorithm>

namespace {

CString NameAndDay(const CString& strFile) {
    CFileStatus status;
    if (!CFile::GetStatus(strFile, status)) {
        return strFile.IsEmpty() ? CString("Registry") : strFile;
    }
    return QVPath(strFile).GetName() + status.m_mtime.Format(", %Y-%m-%d %H:%M");
}

}  // namespace

IMPLEMENT_DYNCREATE(ComparisonDocument, CDocument)

BEGIN_MESSAGE_MAP(ComparisonDocument, CDocument)
    ON_COMMAND(ID_COMPARE_AGAIN, &ComparisonDocument::OnAgain)
END_MESSAGE_MAP()

BOOL ComparisonDocument::OnOpenDocument(LPCTSTR lpszPathName) {
    const auto& frame = static_cast<MainFrame&>(*AfxGetMainWnd());
    const std::shared_ptr<const Inventory> pNow = frame.Shown();
    const auto pBefore = std::make_shared<Inventory>();
    const CString strFile(lpszPathName);
    Comparison comparison;
    Problem problem;
    bool bRead = true;
    Failure pFailure = Work::Run("Reading the packages...", [&](Work& work) {
        std::vector<Package> packages;
        bRead = ReadDatabase(work, strFile, packages, problem);
        if (bRead) {
            work.Say("Comparing the packages...");
            pBefore->SetPackages(std::move(packages));
            comparison = Comparison(*pBefore, *pNow, [&](std::uint64_t nDone, std::uint64_t nAll) {
                work.Step(nDone, nAll);
            });
        }
    });
    if (!bRead) {
        pFailure = Failed(kErrorCompare, ProblemReason(problem));
    }
    if (pFailure != nullptr) {
        Tell(std::move(pFailure), ShownFrame());
        return FALSE;
    }
    // What views hold of the packages that were there goes before them.
    std::swap(m_comparison, comparison);
    const auto pOldBefore = std::exchange(m_pBefore, pBefore);
    const auto pOldNow = std::exchange(m_pNow, pNow);
    m_strBefore = NameAndDay(strFile);
    m_strNow = NameAndDay(frame.ShownFile());
    UpdateAllViews(nullptr);
    return TRUE;
}

// The window that shows it, which comes to the front again behind a dialog; null: none does so far.
CFrameWnd* ComparisonDocument::ShownFrame() const {
    POSITION pos = GetFirstViewPosition();
    CFrameWnd* const pFrame = pos != nullptr ? GetNextView(pos)->GetParentFrame() : nullptr;
    return pFrame != nullptr && pFrame->IsWindowVisible() ? pFrame : nullptr;
}

void ComparisonDocument::OnAgain() {
    OnOpenDocument(CString(GetPathName()));
}
