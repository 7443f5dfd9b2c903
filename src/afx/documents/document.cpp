#include "afx/documents/document.h"

#include "afx/objects/file_path.h"

#include <afxwin.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
    ON_COMMAND(ID_FILE_CLOSE, &CDocument::OnFileClose)
    ON_COMMAND(ID_FILE_SAVE, &CDocument::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &CDocument::OnFileSaveAs)
END_MESSAGE_MAP()

CDocument::CDocument() = default;

CDocument::~CDocument() {
    DisconnectViews();
    if (m_pDocTemplate != nullptr) {
        m_pDocTemplate->RemoveDocument(this);
    }
}

void CDocument::OnFinalRelease() {
    OnCloseDocument();
}

BOOL CDocument::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const AfxLifeWatch watch(m_life);
    if (CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return watch && m_pDocTemplate != nullptr &&
           m_pDocTemplate->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// Title and path

void CDocument::SetTitle(LPCTSTR lpszTitle) {
    m_strTitle = lpszTitle;
    ForEachFrame([](CFrameWnd* pFrame) { pFrame->OnUpdateFrameTitle(TRUE); });
}

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU) {
    CString strName;
    m_strPathName = AfxWholePath(lpszPathName, &strName);
    m_bEmbedded = FALSE;
    SetTitle(strName.IsEmpty() ? m_strPathName : strName);
    if (bAddToMRU && AfxGetApp() != nullptr) {
        AfxGetApp()->AddToRecentFileList(m_strPathName);
    }
}

// Views

void CDocument::AddView(CView* pView) {
    AfxNeedMemory([&] { m_viewList.AddTail(pView); });
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView) {
    const POSITION pos = m_viewList.Find(pView);
    if (pos == nullptr) {
        return;
    }
    m_viewList.RemoveAt(pos);
    pView->m_pDocument = nullptr;
    OnChangedViewList();  // may delete this object
}

void CDocument::DisconnectViews() {
    while (!m_viewList.IsEmpty()) {
        static_cast<CView*>(m_viewList.RemoveHead())->m_pDocument = nullptr;
    }
}

POSITION CDocument::GetFirstViewPosition() const {
    return m_viewList.GetHeadPosition();
}

CView* CDocument::GetNextView(POSITION& rPosition) const {
    return rPosition != nullptr ? static_cast<CView*>(m_viewList.GetNext(rPosition)) : nullptr;
}

namespace {

std::vector<CView*> ViewsOf(const CDocument& document) {
    return AfxNeedMemory([&] {
        std::vector<CView*> views;
        for (POSITION pos = document.GetFirstViewPosition(); pos != nullptr;) {
            views.push_back(document.GetNextView(pos));
        }
        return views;
    });
}

CFrameWnd* FrameOf(const CView* pView) {
    return pView->m_hWnd != nullptr ? pView->GetParentFrame() : nullptr;
}

}  // namespace

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint) {
    const AfxLifeWatch watch(m_life);
    for (CView* pView : ViewsOf(*this)) {
        if (watch && pView != pSender && m_viewList.Find(pView) != nullptr) {
            pView->OnUpdate(pSender, lHint, pHint);
        }
    }
}

void CDocument::SendInitialUpdate() {
    const AfxLifeWatch watch(m_life);
    for (CView* pView : ViewsOf(*this)) {
        if (watch && m_viewList.Find(pView) != nullptr) {
            pView->OnInitialUpdate();
        }
    }
}

/// Each frame that shows the document, once.
template <class Action>
void CDocument::ForEachFrame(Action action) {
    const AfxLifeWatch watch(m_life);
    std::vector<CFrameWnd*> done;
    for (CView* pView : ViewsOf(*this)) {
        if (!watch) {
            return;
        }
        CFrameWnd* pFrame = m_viewList.Find(pView) != nullptr ? FrameOf(pView) : nullptr;
        if (pFrame != nullptr && std::find(done.begin(), done.end(), pFrame) == done.end()) {
            AfxNeedMemory([&] { done.push_back(pFrame); });
            action(pFrame);
        }
    }
}

void CDocument::UpdateFrameCounts() {
    int nFrames = 0;
    ForEachFrame([&](CFrameWnd*) { ++nFrames; });
    int nFrame = 0;
    ForEachFrame([&](CFrameWnd* pFrame) {
        const int nWindow = nFrames > 1 ? ++nFrame : 0;
        if (pFrame->m_nWindow != nWindow) {
            pFrame->m_nWindow = nWindow;
            pFrame->OnUpdateFrameTitle(TRUE);
        }
    });
}

void CDocument::OnChangedViewList() {
    if (m_viewList.IsEmpty() && m_bAutoDelete) {
        OnCloseDocument();
        return;
    }
    UpdateFrameCounts();
}

// New, open, save, close

void CDocument::DeleteContents() {}

BOOL CDocument::OnNewDocument() {
    DeleteContents();
    m_strPathName.Empty();
    SetModifiedFlag(FALSE);
    return TRUE;
}

bool CDocument::IsOnlyFrame(const CFrameWnd* pFrame) {
    bool bOthers = false;
    ForEachFrame([&](const CFrameWnd* pOther) { bOthers |= pOther != pFrame; });
    return !bOthers;
}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame) {
    return !IsOnlyFrame(pFrame) || SaveModified();
}

BOOL CDocument::SaveModified() {
    if (!IsModified()) {
        return TRUE;
    }
    CString strPrompt;
    AfxFormatString1(strPrompt, AFX_IDP_ASK_TO_SAVE,
                     m_strPathName.IsEmpty() ? m_strTitle : m_strPathName);
    const AfxLifeWatch watch(m_life);
    switch (AfxMessageBox(strPrompt, MB_YESNOCANCEL, AFX_IDP_ASK_TO_SAVE)) {
        case IDYES:
            return watch && DoFileSave();
        case IDNO:
            return TRUE;
        default:
            return FALSE;
    }
}

void CDocument::PreCloseFrame(CFrameWnd*) {}

void CDocument::OnCloseDocument() {
    if (m_bClosing) {
        return;  // from a frame that goes away below
    }
    const AfxLifeWatch watch(m_life);
    // The last view that goes would close it once more. What a step throws leaves it as it was.
    struct Closing {
        CDocument& document;
        const AfxLifeWatch& watch;
        const BOOL bAutoDelete;
        Closing(CDocument& doc, const AfxLifeWatch& life, BOOL bDelete)
            : document(doc), watch(life), bAutoDelete(bDelete) {}
        ~Closing() {
            if (watch) {
                document.m_bClosing = false;
                document.m_bAutoDelete = bAutoDelete;
            }
        }
    };
    auto closing = std::make_optional<Closing>(*this, watch, m_bAutoDelete);
    m_bClosing = true;
    m_bAutoDelete = FALSE;
    while (watch && !m_viewList.IsEmpty()) {
        auto* pView = static_cast<CView*>(m_viewList.GetHead());
        if (CFrameWnd* pFrame = FrameOf(pView)) {
            const HWND hFrame = pFrame->m_hWnd;
            PreCloseFrame(pFrame);
            if (watch && CWnd::FromHandlePermanent(hFrame) == pFrame) {
                pFrame->DestroyWindow();
            }
        } else {
            pView->DestroyWindow();
        }
        // A view without a window, or one that outlives it, is no longer the document's.
        if (watch && !m_viewList.IsEmpty() && m_viewList.GetHead() == pView) {
            RemoveView(pView);
        }
    }
    if (!watch) {
        return;
    }
    closing.reset();
    DeleteContents();
    if (watch && m_bAutoDelete) {
        delete this;
    }
}

BOOL CDocument::AskForPath(CString& strPath, BOOL bReplace) {
    if (strPath.IsEmpty() && bReplace) {
        strPath = m_strTitle;
        const int nBad = strPath.FindOneOf(kAfxNotInFileNames);
        if (nBad >= 0) {
            strPath = strPath.Left(nBad);
        }
        CString strExt;
        if (m_pDocTemplate != nullptr &&
            m_pDocTemplate->GetDocString(strExt, CDocTemplate::filterExt)) {
            strPath += strExt;
        }
    }
    return AfxGetApp()->DoPromptFileName(
        strPath, bReplace ? AFX_IDS_SAVEFILE : AFX_IDS_SAVEFILECOPY,
        OFN_HIDEREADONLY | OFN_PATHMUSTEXIST, FALSE, m_pDocTemplate);
}

BOOL CDocument::DoSave(LPCTSTR lpszPathName, BOOL bReplace) {
    const AfxLifeWatch watch(m_life);
    CString strPath(lpszPathName);
    if (strPath.IsEmpty()) {
        strPath = m_strPathName;
        if (!AskForPath(strPath, bReplace) || !watch) {
            return FALSE;
        }
    }
    const CWaitCursor wait;
    if (!OnSaveDocument(strPath) || !watch) {
        return FALSE;
    }
    if (bReplace) {
        SetPathName(strPath);
    }
    return TRUE;
}

BOOL CDocument::DoFileSave() {
    // What is missing counts as read-only as well: all its attributes are set.
    const bool bWritable =
        !m_strPathName.IsEmpty() && !(::GetFileAttributes(m_strPathName) & FILE_ATTRIBUTE_READONLY);
    return DoSave(bWritable ? static_cast<LPCTSTR>(m_strPathName) : nullptr);
}

void CDocument::OnFileClose() {
    const AfxLifeWatch watch(m_life);
    if (SaveModified() && watch) {
        OnCloseDocument();
    }
}

void CDocument::OnFileSave() {
    DoFileSave();
}

void CDocument::OnFileSaveAs() {
    DoSave(nullptr);
}
