// Extension modules: whose classes and resources are found while they are loaded, and afterwards.
#include "support/popup.h"
#include "window/late_module/late_module_ids.h"
#include "window/second_module/second_module.h"
#include "window/second_module/second_module_ids.h"

#include <afxwin.h>

#include <gtest/gtest.h>
#include <memory>

namespace {

class ProgramObject : public CObject {
    DECLARE_DYNCREATE(ProgramObject)
};
IMPLEMENT_DYNCREATE(ProgramObject, CObject)

/// The records of everybody who was there before the late module: the program, the framework, the
/// library, a module of the program's.
void ExpectTheOthersFound() {
    for (const char* pszName :
         {"ProgramObject", "CWnd", "CObject", "CDynLinkLibrary", "QVTreeCtrlEx"}) {
        EXPECT_NE(nullptr, CRuntimeClass::FromName(pszName)) << pszName;
    }
    EXPECT_EQ(RUNTIME_CLASS(ModuleObject), CRuntimeClass::FromName("ModuleObject"));
    CString str;
    for (const UINT nID : {IDS_SECOND, IDS_SECOND_BESIDE, AFX_IDS_IDLEMESSAGE, AFX_IDP_PARSE_INT}) {
        char szText[80] = "";
        EXPECT_TRUE(str.LoadString(nID) && AfxLoadString(nID, szText, sizeof szText)) << nID;
        EXPECT_STREQ(szText, str);
    }
}

TEST(ExtensionModule, LoadedLate_JoinsAndLeaves) {
    ExpectTheOthersFound();
    for (int nRound = 0; nRound < 2; ++nRound) {
        EXPECT_EQ(nullptr, CRuntimeClass::FromName("LateWnd"));
        const HMODULE hLate = ::LoadLibrary("late_module.dll");
        ASSERT_NE(nullptr, hLate);
        ExpectTheOthersFound();
        CString str;
        EXPECT_TRUE(str.LoadString(IDS_LATE));
        std::unique_ptr<CObject> pWnd(CRuntimeClass::CreateObject("LateWnd"));
        auto* pLateWnd = DYNAMIC_DOWNCAST(CWnd, pWnd.get());
        ASSERT_NE(nullptr, pLateWnd);
        ASSERT_TRUE(MakePopup(*pLateWnd));
        EXPECT_EQ(77, pLateWnd->SendMessage(WM_APP));
        pLateWnd->DestroyWindow();
        pWnd.reset();

        ASSERT_TRUE(::FreeLibrary(hLate));
        ASSERT_EQ(nullptr, ::GetModuleHandle("late_module.dll"));
        EXPECT_EQ(nullptr, CRuntimeClass::FromName("LateWnd"));
        EXPECT_FALSE(str.LoadString(IDS_LATE));
        ExpectTheOthersFound();
    }
}

}  // namespace
