// CAsyncSocket: a socket of the internet's protocols whose events come as calls.
#pragma once

#include "afx/objects/object.h"
#include "afx/values/string.h"

#ifndef FD_READ  // windows.h has left the sockets out for a program that asks it to be lean
#include <winsock2.h>
#endif

/// Starts the system's sockets for the process. Once, before the first socket.
QVAFX_API BOOL AfxSocketInit(WSADATA* lpwsaData = nullptr);

/// Belongs to the thread that made it, which must have a message loop: events come there. What
/// cannot be done at once gives FALSE or SOCKET_ERROR, and GetLastError WSAEWOULDBLOCK; an event
/// tells when to try again.
class QVAFX_API CAsyncSocket : public CObject {
    DECLARE_DYNAMIC(CAsyncSocket)

    static constexpr long kAllEvents =
        FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE;

public:
    enum { receives = 0, sends = 1, both = 2 };

    CAsyncSocket() = default;
    ~CAsyncSocket() override;  ///< closes the socket, without Close of a derived class

    SOCKET m_hSocket = INVALID_SOCKET;
    operator SOCKET() const { return m_hSocket; }

    /// Bound to a port, 0 for any, of one of the machine's addresses, null for all.
    BOOL Create(UINT nSocketPort = 0, int nSocketType = SOCK_STREAM, long lEvent = kAllEvents,
                LPCTSTR lpszSocketAddress = nullptr);
    BOOL Socket(int nSocketType = SOCK_STREAM, long lEvent = kAllEvents, int nProtocolType = 0,
                int nAddressFormat = PF_INET);
    BOOL Attach(SOCKET hSocket, long lEvent = kAllEvents);
    SOCKET Detach();
    static CAsyncSocket* FromHandle(SOCKET hSocket);  ///< of this thread; null if there is none
    static int GetLastError() { return ::WSAGetLastError(); }

    BOOL GetPeerName(CString& rPeerAddress, UINT& rPeerPort);
    BOOL GetPeerName(SOCKADDR* lpSockAddr, int* lpSockAddrLen);
    BOOL GetSockName(CString& rSocketAddress, UINT& rSocketPort);
    BOOL GetSockName(SOCKADDR* lpSockAddr, int* lpSockAddrLen);
    BOOL SetSockOpt(int nOptionName, const void* lpOptionValue, int nOptionLen,
                    int nLevel = SOL_SOCKET);
    BOOL GetSockOpt(int nOptionName, void* lpOptionValue, int* lpOptionLen,
                    int nLevel = SOL_SOCKET);
    BOOL AsyncSelect(long lEvent = kAllEvents);
    BOOL IOCtl(long lCommand, DWORD* lpArgument);

    BOOL Bind(UINT nSocketPort, LPCTSTR lpszSocketAddress = nullptr);
    BOOL Bind(const SOCKADDR* lpSockAddr, int nSockAddrLen);
    virtual BOOL Accept(CAsyncSocket& rConnectedSocket, SOCKADDR* lpSockAddr = nullptr,
                        int* lpSockAddrLen = nullptr);
    /// A name or an address in dots.
    BOOL Connect(LPCTSTR lpszHostAddress, UINT nHostPort);
    BOOL Connect(const SOCKADDR* lpSockAddr, int nSockAddrLen);
    BOOL Listen(int nConnectionBacklog = 5);
    virtual int Receive(void* lpBuf, int nBufLen, int nFlags = 0);
    int ReceiveFrom(void* lpBuf, int nBufLen, CString& rSocketAddress, UINT& rSocketPort,
                    int nFlags = 0);
    int ReceiveFrom(void* lpBuf, int nBufLen, SOCKADDR* lpSockAddr, int* lpSockAddrLen,
                    int nFlags = 0);
    virtual int Send(const void* lpBuf, int nBufLen, int nFlags = 0);
    /// Null: to everybody nearby.
    int SendTo(const void* lpBuf, int nBufLen, UINT nHostPort, LPCTSTR lpszHostAddress = nullptr,
               int nFlags = 0);
    int SendTo(const void* lpBuf, int nBufLen, const SOCKADDR* lpSockAddr, int nSockAddrLen,
               int nFlags = 0);
    BOOL ShutDown(int nHow = sends);
    virtual void Close();

protected:
    // Events, with 0 or the error. Each may delete the object.
    virtual void OnReceive(int nErrorCode);
    virtual void OnSend(int nErrorCode);
    virtual void OnOutOfBandData(int nErrorCode);
    virtual void OnAccept(int nErrorCode);
    virtual void OnConnect(int nErrorCode);
    virtual void OnClose(int nErrorCode);

private:
    friend struct AfxSocketEvents;
};
