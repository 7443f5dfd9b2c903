#include "afx/objects/async_socket.h"

#include "afx/window/wnd_state.h"

#include <afxwin.h>

#include <unordered_map>

IMPLEMENT_DYNAMIC(CAsyncSocket, CObject)

namespace {

constexpr UINT kSocketEvent = WM_APP;  // wParam: socket; lParam: event and error
constexpr char kEventClass[] = "QvAfxSockets";

using Sockets = std::unordered_map<SOCKET, CAsyncSocket*>;

Sockets& ThreadSockets() {
    static thread_local Sockets s_sockets;
    return s_sockets;
}

SOCKADDR_IN Address(LPCTSTR lpszHost, UINT nPort, ULONG nWithout) {
    SOCKADDR_IN address = {};
    address.sin_family = AF_INET;
    address.sin_port = ::htons(static_cast<u_short>(nPort));
    address.sin_addr.s_addr = lpszHost != nullptr ? ::inet_addr(lpszHost) : ::htonl(nWithout);
    if (lpszHost != nullptr && address.sin_addr.s_addr == INADDR_NONE) {
        const hostent* pHost = ::gethostbyname(lpszHost);
        if (pHost != nullptr && pHost->h_addrtype == AF_INET) {
            std::memcpy(&address.sin_addr, pHost->h_addr_list[0], sizeof(address.sin_addr));
        }
    }
    return address;
}

const SOCKADDR* Plain(const SOCKADDR_IN& address) {
    return reinterpret_cast<const SOCKADDR*>(&address);
}

void Tell(const SOCKADDR_IN& address, CString& strAddress, UINT& nPort) {
    strAddress = ::inet_ntoa(address.sin_addr);
    nPort = ::ntohs(address.sin_port);
}

/// Asks for one of a socket's two addresses.
template <class Ask>
BOOL TellOne(SOCKET hSocket, Ask ask, CString& strAddress, UINT& nPort) {
    SOCKADDR_IN address = {};
    int nLength = sizeof(address);
    if (ask(hSocket, reinterpret_cast<SOCKADDR*>(&address), &nLength) == SOCKET_ERROR) {
        return FALSE;
    }
    Tell(address, strAddress, nPort);
    return TRUE;
}

}  // namespace

/// The window that gets a thread's events.
struct AfxSocketEvents {
    static HWND Window() {
        static thread_local HWND s_hWnd = nullptr;
        if (!::IsWindow(s_hWnd)) {
            WNDCLASS wc = {};
            wc.lpfnWndProc = &WindowProc;
            wc.hInstance = AfxGetInstanceHandle();
            wc.lpszClassName = kEventClass;
            ::RegisterClass(&wc);
            s_hWnd = ::CreateWindow(kEventClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                    wc.hInstance, nullptr);
        }
        return s_hWnd;
    }

    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != kSocketEvent) {
            return ::DefWindowProc(hWnd, message, wParam, lParam);
        }
        try {
            if (CAsyncSocket* pSocket = CAsyncSocket::FromHandle(wParam)) {
                Dispatch(*pSocket, WSAGETSELECTEVENT(lParam), WSAGETSELECTERROR(lParam));
            }
        } catch (...) {
            AfxProcessCurrentException(hWnd, message, wParam, lParam);
        }
        return 0;
    }

    static void Dispatch(CAsyncSocket& socket, int nEvent, int nError) {
        switch (nEvent) {
            case FD_READ:
                socket.OnReceive(nError);
                break;
            case FD_WRITE:
                socket.OnSend(nError);
                break;
            case FD_OOB:
                socket.OnOutOfBandData(nError);
                break;
            case FD_ACCEPT:
                socket.OnAccept(nError);
                break;
            case FD_CONNECT:
                socket.OnConnect(nError);
                break;
            case FD_CLOSE:
                socket.OnClose(nError);
                break;
            default:
                break;
        }
    }
};

BOOL AfxSocketInit(WSADATA* lpwsaData) {
    WSADATA data;
    return ::WSAStartup(MAKEWORD(2, 2), lpwsaData != nullptr ? lpwsaData : &data) == 0;
}

CAsyncSocket::~CAsyncSocket() {
    CAsyncSocket::Close();
}

CAsyncSocket* CAsyncSocket::FromHandle(SOCKET hSocket) {
    const auto it = ThreadSockets().find(hSocket);
    return it != ThreadSockets().end() ? it->second : nullptr;
}

BOOL CAsyncSocket::Attach(SOCKET hSocket, long lEvent) {
    if (hSocket == INVALID_SOCKET || m_hSocket != INVALID_SOCKET) {
        return FALSE;
    }
    ThreadSockets()[hSocket] = this;
    m_hSocket = hSocket;
    return AsyncSelect(lEvent);
}

SOCKET CAsyncSocket::Detach() {
    const SOCKET hSocket = m_hSocket;
    if (hSocket != INVALID_SOCKET) {
        AsyncSelect(0);
        ThreadSockets().erase(hSocket);
        m_hSocket = INVALID_SOCKET;
    }
    return hSocket;
}

BOOL CAsyncSocket::Socket(int nSocketType, long lEvent, int nProtocolType, int nAddressFormat) {
    const SOCKET hSocket = ::socket(nAddressFormat, nSocketType, nProtocolType);
    if (hSocket == INVALID_SOCKET) {
        return FALSE;
    }
    if (!Attach(hSocket, lEvent)) {
        if (m_hSocket == hSocket) {
            Detach();
        }
        ::closesocket(hSocket);
        return FALSE;
    }
    return TRUE;
}

BOOL CAsyncSocket::Create(UINT nSocketPort, int nSocketType, long lEvent,
                          LPCTSTR lpszSocketAddress) {
    if (!Socket(nSocketType, lEvent)) {
        return FALSE;
    }
    if (Bind(nSocketPort, lpszSocketAddress)) {
        return TRUE;
    }
    const int nError = GetLastError();
    CAsyncSocket::Close();
    ::WSASetLastError(nError);
    return FALSE;
}

void CAsyncSocket::Close() {
    const SOCKET hSocket = Detach();
    if (hSocket != INVALID_SOCKET) {
        ::closesocket(hSocket);
    }
}

BOOL CAsyncSocket::AsyncSelect(long lEvent) {
    return ::WSAAsyncSelect(m_hSocket, AfxSocketEvents::Window(), kSocketEvent, lEvent) !=
           SOCKET_ERROR;
}

BOOL CAsyncSocket::IOCtl(long lCommand, DWORD* lpArgument) {
    return ::ioctlsocket(m_hSocket, lCommand, lpArgument) != SOCKET_ERROR;
}

BOOL CAsyncSocket::GetPeerName(CString& rPeerAddress, UINT& rPeerPort) {
    return TellOne(m_hSocket, ::getpeername, rPeerAddress, rPeerPort);
}
BOOL CAsyncSocket::GetPeerName(SOCKADDR* lpSockAddr, int* lpSockAddrLen) {
    return ::getpeername(m_hSocket, lpSockAddr, lpSockAddrLen) != SOCKET_ERROR;
}
BOOL CAsyncSocket::GetSockName(CString& rSocketAddress, UINT& rSocketPort) {
    return TellOne(m_hSocket, ::getsockname, rSocketAddress, rSocketPort);
}
BOOL CAsyncSocket::GetSockName(SOCKADDR* lpSockAddr, int* lpSockAddrLen) {
    return ::getsockname(m_hSocket, lpSockAddr, lpSockAddrLen) != SOCKET_ERROR;
}
BOOL CAsyncSocket::SetSockOpt(int nOptionName, const void* lpOptionValue, int nOptionLen,
                              int nLevel) {
    return ::setsockopt(m_hSocket, nLevel, nOptionName, static_cast<const char*>(lpOptionValue),
                        nOptionLen) != SOCKET_ERROR;
}
BOOL CAsyncSocket::GetSockOpt(int nOptionName, void* lpOptionValue, int* lpOptionLen, int nLevel) {
    return ::getsockopt(m_hSocket, nLevel, nOptionName, static_cast<char*>(lpOptionValue),
                        lpOptionLen) != SOCKET_ERROR;
}

BOOL CAsyncSocket::Bind(UINT nSocketPort, LPCTSTR lpszSocketAddress) {
    const SOCKADDR_IN address = Address(lpszSocketAddress, nSocketPort, INADDR_ANY);
    return Bind(Plain(address), sizeof(address));
}
BOOL CAsyncSocket::Bind(const SOCKADDR* lpSockAddr, int nSockAddrLen) {
    return ::bind(m_hSocket, lpSockAddr, nSockAddrLen) != SOCKET_ERROR;
}

BOOL CAsyncSocket::Accept(CAsyncSocket& rConnectedSocket, SOCKADDR* lpSockAddr,
                          int* lpSockAddrLen) {
    const SOCKET hSocket = ::accept(m_hSocket, lpSockAddr, lpSockAddrLen);
    if (hSocket == INVALID_SOCKET) {
        return FALSE;
    }
    if (!rConnectedSocket.Attach(hSocket)) {
        if (rConnectedSocket.m_hSocket != hSocket) {
            ::closesocket(hSocket);
        }
        return FALSE;
    }
    return TRUE;
}

BOOL CAsyncSocket::Connect(LPCTSTR lpszHostAddress, UINT nHostPort) {
    const SOCKADDR_IN address = Address(lpszHostAddress, nHostPort, INADDR_LOOPBACK);
    if (address.sin_addr.s_addr == INADDR_NONE) {
        ::WSASetLastError(WSAEINVAL);
        return FALSE;
    }
    return Connect(Plain(address), sizeof(address));
}
BOOL CAsyncSocket::Connect(const SOCKADDR* lpSockAddr, int nSockAddrLen) {
    return ::connect(m_hSocket, lpSockAddr, nSockAddrLen) != SOCKET_ERROR;
}
BOOL CAsyncSocket::Listen(int nConnectionBacklog) {
    return ::listen(m_hSocket, nConnectionBacklog) != SOCKET_ERROR;
}
BOOL CAsyncSocket::ShutDown(int nHow) {
    return ::shutdown(m_hSocket, nHow) != SOCKET_ERROR;
}

int CAsyncSocket::Receive(void* lpBuf, int nBufLen, int nFlags) {
    return ::recv(m_hSocket, static_cast<char*>(lpBuf), nBufLen, nFlags);
}
int CAsyncSocket::ReceiveFrom(void* lpBuf, int nBufLen, CString& rSocketAddress, UINT& rSocketPort,
                              int nFlags) {
    SOCKADDR_IN address = {};
    int nLength = sizeof(address);
    const int nResult =
        ReceiveFrom(lpBuf, nBufLen, reinterpret_cast<SOCKADDR*>(&address), &nLength, nFlags);
    if (nResult != SOCKET_ERROR) {
        Tell(address, rSocketAddress, rSocketPort);
    }
    return nResult;
}
int CAsyncSocket::ReceiveFrom(void* lpBuf, int nBufLen, SOCKADDR* lpSockAddr, int* lpSockAddrLen,
                              int nFlags) {
    return ::recvfrom(m_hSocket, static_cast<char*>(lpBuf), nBufLen, nFlags, lpSockAddr,
                      lpSockAddrLen);
}
int CAsyncSocket::Send(const void* lpBuf, int nBufLen, int nFlags) {
    return ::send(m_hSocket, static_cast<const char*>(lpBuf), nBufLen, nFlags);
}
int CAsyncSocket::SendTo(const void* lpBuf, int nBufLen, UINT nHostPort, LPCTSTR lpszHostAddress,
                         int nFlags) {
    const SOCKADDR_IN address = Address(lpszHostAddress, nHostPort, INADDR_BROADCAST);
    if (lpszHostAddress != nullptr && address.sin_addr.s_addr == INADDR_NONE) {
        ::WSASetLastError(WSAEINVAL);
        return SOCKET_ERROR;
    }
    return SendTo(lpBuf, nBufLen, Plain(address), sizeof(address), nFlags);
}
int CAsyncSocket::SendTo(const void* lpBuf, int nBufLen, const SOCKADDR* lpSockAddr,
                         int nSockAddrLen, int nFlags) {
    return ::sendto(m_hSocket, static_cast<const char*>(lpBuf), nBufLen, nFlags, lpSockAddr,
                    nSockAddrLen);
}

void CAsyncSocket::OnReceive(int) {}
void CAsyncSocket::OnSend(int) {}
void CAsyncSocket::OnOutOfBandData(int) {}
void CAsyncSocket::OnAccept(int) {}
void CAsyncSocket::OnConnect(int) {}
void CAsyncSocket::OnClose(int) {}
