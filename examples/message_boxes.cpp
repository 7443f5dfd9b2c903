// Two questions: one with Yes, No and a check box, one for a line of text.
#include <QVControls.h>

class App : public CWinApp {
    BOOL InitInstance() override {
        SetRegistryKey("QVControls examples");
        CHAR szName[64] = "";
        DWORD dwLength = sizeof(szName);
        ::GetUserNameA(szName, &dwLength);
        // What was ticked is kept by the program; the box only shows it and gives it back.
        if (GetProfileInt("Questions", "AskForName", TRUE)) {
            QVMsgBox box;
            box.SetTitle("Greeting");
            box.SetPrompt(CString("Windows knows you as \"") + szName +
                          "\". Do you want to be greeted by another name?");
            box.SetCheckString("Do not &ask again");
            const INT_PTR nAnswer = box.DoModal();
            WriteProfileInt("Questions", "AskForName", !box.CheckState());
            if (nAnswer == IDNO) {
                return FALSE;
            }
        }
        QVMsgPromptDlg prompt;
        prompt.SetTitle("Greeting");
        prompt.SetPrompt("Name:");
        prompt.SetValue(GetProfileString("Greeting", "Name", szName));
        prompt.SetDataLen(30);  // OK is disabled without a text, unless that is allowed
        prompt.SetCheckString("&Keep this name");
        prompt.SetCheckState(1);
        if (prompt.DoModal() == IDOK) {
            if (prompt.CheckState() != 0) {
                WriteProfileString("Greeting", "Name", prompt.GetValue());
            }
            AfxMessageBox("Good day, " + prompt.GetValue() + ".", MB_ICONINFORMATION);
        }
        return FALSE;
    }
} theApp;
