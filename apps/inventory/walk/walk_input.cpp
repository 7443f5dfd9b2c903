#include "walk/walk_input.h"

#include "QVControls.h"

#include <vector>

void HandleMessages() {
    CWinThread* pThread = AfxGetThread();
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        pThread->PumpMessage();
    }
    for (LONG nIdle = 0; pThread->OnIdle(nIdle); ++nIdle) {
    }
}

void SendMouse(CPoint ptScreen, std::initializer_list<DWORD> flags, DWORD dwData) {
    ::SetCursorPos(ptScreen.x, ptScreen.y);
    std::vector<INPUT> inputs;
    for (const DWORD dwFlags : flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = dwFlags;
        input.mi.mouseData = dwData;
        inputs.push_back(input);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Click(CPoint ptScreen) {
    SendMouse(ptScreen, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

void ClickOn(CWnd& wnd) {
    CRect rc;
    wnd.GetWindowRect(&rc);
    Click(rc.CenterPoint());
}

void LetClickPass() {
    const ULONGLONG nThen = ::GetTickCount64() + ::GetDoubleClickTime();
    WaitFor([&] { return ::GetTickCount64() > nThen; });
}

void Press(WORD nKey, WORD nHeld) {
    std::vector<INPUT> inputs;
    const auto add = [&](WORD nVirtual, DWORD dwFlags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = nVirtual;
        input.ki.wScan = static_cast<WORD>(::MapVirtualKey(nVirtual, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = dwFlags;
        inputs.push_back(input);
    };
    if (nHeld != 0) {
        add(nHeld, 0);
    }
    add(nKey, 0);
    add(nKey, KEYEVENTF_KEYUP);
    if (nHeld != 0) {
        add(nHeld, KEYEVENTF_KEYUP);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

bool SavePicture(CWnd& wnd, const CString& strFile) {
    CRect rect;
    wnd.GetWindowRect(&rect);
    CClientDC dcScreen(nullptr);
    CDC dc;
    CBitmap bitmap;
    dc.CreateCompatibleDC(&dcScreen);
    bitmap.CreateCompatibleBitmap(&dcScreen, rect.Width(), rect.Height());
    {
        const qv::SelectGuard select(dc, &bitmap);
        dc.BitBlt(0, 0, rect.Width(), rect.Height(), &dcScreen, rect.left, rect.top, SRCCOPY);
    }

    BITMAPINFOHEADER info{};
    info.biSize = sizeof(info);
    info.biWidth = rect.Width();
    info.biHeight = rect.Height();
    info.biPlanes = 1;
    info.biBitCount = 24;
    const size_t nStride = (static_cast<size_t>(rect.Width()) * 3 + 3) / 4 * 4;
    std::vector<BYTE> bits(nStride * static_cast<size_t>(rect.Height()));
    if (::GetDIBits(dc, bitmap, 0, static_cast<UINT>(rect.Height()), bits.data(),
                    reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS) == 0) {
        return false;
    }
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;  // "BM"
    header.bfOffBits = sizeof(header) + sizeof(info);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(bits.size());
    CFile file;
    if (!file.Open(strFile, CFile::modeCreate | CFile::modeWrite)) {
        return false;
    }
    file.Write(&header, sizeof(header));
    file.Write(&info, sizeof(info));
    file.Write(bits.data(), static_cast<UINT>(bits.size()));
    return true;
}
