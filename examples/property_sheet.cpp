// A sheet of two pages: settings of mouse and keyboard. OK sets them, for this session alone.
#include "resource.h"

#include <QVControls.h>

// Each page is a template of its own, laid out in its own font, and carries its values to and from
// its controls as any dialog does.
class MousePage : public QVPropertyPage {
public:
    MousePage() : QVPropertyPage(IDD_PAGE_MOUSE) {
        ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &m_nWheelLines, 0);
    }
    void Apply() const {
        ::SetDoubleClickTime(m_nDoubleClick);
        ::SystemParametersInfo(SPI_SETWHEELSCROLLLINES, m_nWheelLines, nullptr, 0);
        ::SwapMouseButton(m_bSwap);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        QVPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_DOUBLE_CLICK, m_nDoubleClick);
        DDV_MinMaxUInt(pDX, m_nDoubleClick, 100, 5000);  // keeps the user on the page
        DDX_Text(pDX, IDC_WHEEL_LINES, m_nWheelLines);
        DDX_Check(pDX, IDC_SWAP, m_bSwap);
    }

private:
    UINT m_nDoubleClick = ::GetDoubleClickTime();
    UINT m_nWheelLines = 3;
    int m_bSwap = ::GetSystemMetrics(SM_SWAPBUTTON);
};

class KeyboardPage : public QVPropertyPage {
public:
    KeyboardPage() : QVPropertyPage(IDD_PAGE_KEYBOARD) {
        ::SystemParametersInfo(SPI_GETKEYBOARDDELAY, 0, &m_nDelay, 0);
    }
    void Apply() const {
        ::SetCaretBlinkTime(m_nBlink);
        ::SystemParametersInfo(SPI_SETKEYBOARDDELAY, m_nDelay, nullptr, 0);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        QVPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_BLINK, m_nBlink);
        DDV_MinMaxUInt(pDX, m_nBlink, 100, 5000);
        DDX_Text(pDX, IDC_DELAY, m_nDelay);
        DDV_MinMaxUInt(pDX, m_nDelay, 0, 3);
    }

private:
    UINT m_nBlink = ::GetCaretBlinkTime();
    UINT m_nDelay = 1;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        MousePage mouse;  // pages are the program's, and outlive the sheet
        KeyboardPage keyboard;
        QVPropertySheet sheet("Input");
        sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;  // nothing is applied before OK
        sheet.AddPage(&mouse);
        sheet.AddPage(&keyboard);
        m_pMainWnd = &sheet;
        if (sheet.DoModal() == IDOK) {
            mouse.Apply();
            keyboard.Apply();
        }
        return FALSE;
    }
} theApp;
