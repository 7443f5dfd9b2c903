// Sockets whose events come as calls, between two of them in this process.
#include "support/pump.h"

#include <afxsock.h>

#include <gtest/gtest.h>
#include <string>

namespace {

class Talker : public CAsyncSocket {
public:
    std::string m_strTold;
    std::string m_strReceived;
    CAsyncSocket* m_pAccepts = nullptr;

protected:
    void OnReceive(int) override {
        char szText[64];
        const int nBytes = Receive(szText, sizeof(szText));
        m_strReceived.append(szText, static_cast<size_t>(nBytes > 0 ? nBytes : 0));
    }
    void OnConnect(int nErrorCode) override { m_strTold += nErrorCode == 0 ? "connect " : "no "; }
    void OnAccept(int) override { m_strTold += Accept(*m_pAccepts) ? "accept " : "failed "; }
    void OnClose(int) override { m_strTold += "close "; }
};

/// Whether this machine reaches itself, by the plain calls: one without any network does not.
bool LoopbackIsUp() {
    const SOCKET hServer = ::socket(AF_INET, SOCK_STREAM, 0);
    const SOCKET hClient = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* pAddress = reinterpret_cast<sockaddr*>(&address);
    int nSize = sizeof(address);
    const bool bUp = ::bind(hServer, pAddress, nSize) == 0 && ::listen(hServer, 1) == 0 &&
                     ::getsockname(hServer, pAddress, &nSize) == 0 &&
                     ::connect(hClient, pAddress, nSize) == 0;
    ::closesocket(hClient);
    ::closesocket(hServer);
    return bUp;
}

TEST(AsyncSocket, TwoTalkByStream) {
    ASSERT_TRUE(AfxSocketInit());
    if (!LoopbackIsUp()) {
        GTEST_SKIP() << "this machine has no network, not even to itself";
    }
    Talker server;
    Talker accepted;
    server.m_pAccepts = &accepted;
    CString strAddress;
    UINT nPort = 0;
    ASSERT_TRUE(server.Create(0, SOCK_STREAM, CAsyncSocket::kAllEvents, "127.0.0.1"));
    ASSERT_TRUE(server.Listen());
    ASSERT_TRUE(server.GetSockName(strAddress, nPort));
    EXPECT_EQ(strAddress, "127.0.0.1");
    {
        Talker client;
        ASSERT_TRUE(client.Create());
        EXPECT_FALSE(client.Connect("127.0.0.1", nPort));
        EXPECT_EQ(CAsyncSocket::GetLastError(), WSAEWOULDBLOCK);
        EXPECT_TRUE(
            PumpUntil([&] { return !client.m_strTold.empty() && !server.m_strTold.empty(); }));
        EXPECT_EQ(client.m_strTold + server.m_strTold, "connect accept ");
        EXPECT_EQ(CAsyncSocket::FromHandle(accepted), &accepted);
        EXPECT_EQ(accepted.Send("there", 5), 5);
        EXPECT_EQ(client.Send("and back", 8), 8);
        EXPECT_TRUE(PumpUntil([&] {
            return client.m_strReceived == "there" && accepted.m_strReceived == "and back";
        }));
    }
    EXPECT_TRUE(PumpUntil([&] { return accepted.m_strTold == "close "; }));
}

}  // namespace
