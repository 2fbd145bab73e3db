// Framing and its failures; both transports share them, so that most tests run over each.
#include "apiwrapper/ZESocketTransport.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "Common/Platform.h"
#include "apiwrapper/ZETCPTransport.h"
#include "tests/support/ScriptedRuntime.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> g_log;
void record(const ZEString& line) { g_log.emplace_back(line); }

// The far end of a connection, byte by byte, on the test's own thread.
class Peer {
 public:
  explicit Peer(int family) : m_family(family), m_listener(socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    if (family == AF_UNIX) {
      char folder[] = "/tmp/zelto-transport-XXXXXX";
      m_folder = mkdtemp(folder);
      m_path = m_folder + "/socket";
      sockaddr_un address = sockaddr_un();
      address.sun_family = AF_UNIX;
      m_path.copy(address.sun_path, sizeof(address.sun_path) - 1);
      EXPECT_EQ(bind(m_listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    }
    // Without an address of its own a TCP socket gets any free port.
    EXPECT_EQ(listen(m_listener, 1), 0);
  }
  ~Peer() {
    stopListening();
    hangUp();
    if (!m_folder.empty()) rmdir(m_folder.c_str());
  }

  std::unique_ptr<ZETransport> makeTransport() const {
    if (m_family == AF_UNIX) return std::make_unique<ZESocketTransport>(ZEString(m_path.c_str()));
    sockaddr_in address = sockaddr_in();
    socklen_t length = sizeof(address);
    getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &length);
    return std::make_unique<ZETCPTransport>("127.0.0.1", ntohs(address.sin_port));
  }
  void accept() { m_connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC); }
  void stopListening() {
    closeOnce(m_listener);
    if (!m_path.empty()) unlink(m_path.c_str());
  }
  void hangUp() { closeOnce(m_connection); }
  void send(const std::string& bytes) const {
    ASSERT_EQ(::send(m_connection, bytes.data(), bytes.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(bytes.size()));
  }
  std::string receive(std::size_t size) const {
    std::string bytes(size, '\0');
    const ssize_t received = recv(m_connection, bytes.data(), size, MSG_WAITALL);
    return bytes.substr(0, static_cast<std::size_t>(std::max<ssize_t>(0, received)));
  }

 private:
  static void closeOnce(int& descriptor) {
    if (descriptor != -1) close(descriptor);
    descriptor = -1;
  }

  const int m_family;
  int m_listener;
  int m_connection = -1;
  std::string m_folder;
  std::string m_path;
};

// An operating system that hands out bytes one at a time and is interrupted before each, and whose calls can
// be made to fail.
class StubbornSystem : public zelto::Platform {
 public:
  StubbornSystem() : m_former(zelto::SetSystem(this)) {}
  ~StubbornSystem() override { zelto::SetSystem(m_former); }

  int Socket(int family, int type, int protocol) override {
    if (socketFails) return fail(EMFILE);
    const int descriptor = Platform::Socket(family, type, protocol);
    if (lowestDescriptor == 0) return descriptor;
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, lowestDescriptor);
    close(descriptor);
    return moved;
  }
  int Connect(int descriptor, const sockaddr* address, socklen_t length) override {
    ++connects;
    return connects <= connectFailures ? fail(EINVAL) : Platform::Connect(descriptor, address, length);
  }
  ssize_t Read(int descriptor, void* buffer, std::size_t size) override {
    return dribbles && interrupted() ? fail(EINTR) : Platform::Read(descriptor, buffer, dribbles ? 1 : size);
  }
  ssize_t WriteSocket(int descriptor, const void* data, std::size_t size) override {
    if (dribbles && interrupted()) return fail(EINTR);
    return Platform::WriteSocket(descriptor, data, dribbles ? 1 : size);
  }
  int WaitReadable(int descriptor, int milliseconds) override {
    if (waitFails) return fail(ENOMEM);
    return dribbles && interrupted() ? fail(EINTR) : Platform::WaitReadable(descriptor, milliseconds);
  }

  bool socketFails = false;
  bool waitFails = false;
  bool dribbles = false;
  int connects = 0;
  int connectFailures = 0;
  int lowestDescriptor = 0;

 private:
  static int fail(int error) {
    errno = error;
    return -1;
  }
  bool interrupted() { return m_interrupted = !m_interrupted; }

  zelto::Platform* m_former;
  bool m_interrupted = false;
};

class ATransport : public testing::TestWithParam<int> {
 protected:
  ATransport() : peer(GetParam()), transport(peer.makeTransport()) {
    g_log.clear();
    transport->logFunction = &record;
  }
  ~ATransport() override { transport->disconnect(); }

  void connect() {
    ASSERT_TRUE(transport->connect());
    peer.accept();
  }
  std::string name() const { return GetParam() == AF_UNIX ? "ZESocketTransport" : "ZETCPTransport"; }

  Peer peer;
  std::unique_ptr<ZETransport> transport;
};

INSTANTIATE_TEST_SUITE_P(LocalAndTcp, ATransport, testing::Values(AF_UNIX, AF_INET),
                         [](const auto& kind) { return kind.param == AF_UNIX ? "Local" : "Tcp"; });

TEST_P(ATransport, ComplainsWhenItCannotConnectAndWhenUsedNevertheless) {
  EXPECT_EQ(transport->getSocket(), -1);
  {
    StubbornSystem system;
    system.socketFails = true;
    EXPECT_FALSE(transport->connect());
  }
  peer.stopListening();
  EXPECT_FALSE(transport->connect());
  EXPECT_FALSE(transport->isConnected());
  EXPECT_NE(transport->getSocket(), -1) << "stays open until disconnect()";
  EXPECT_FALSE(transport->hasMore(0));
  transport->push("x");
  EXPECT_TRUE(transport->pull(true).isNull());
  transport->disconnect();
  EXPECT_EQ(transport->getSocket(), -1);
  EXPECT_THAT(g_log, ElementsAre("ZELTO ERROR - " + name() + "::connect(), couldn't create socket",
                                 "ZELTO ERROR - " + name() + "::connect(), couldn't connect to socket",
                                 "ZELTO ERROR - " + name() + "::push(), not connected",
                                 "ZELTO ERROR - " + name() + "::pull(), not connected"));
}

TEST_P(ATransport, FramesMessagesBothWaysAndTracesThemWhenAsked) {
  connect();
  transport->push("ab");
  EXPECT_EQ(peer.receive(6), std::string("\0\0\0\2ab", 6));
  transport->push("");
  EXPECT_EQ(peer.receive(4), std::string("\0\0\0\0", 4));

  peer.send(std::string("\0\0\0\0\0\0\0\3xyz", 11));
  const ZEString empty = transport->pull(true);
  EXPECT_FALSE(empty.isNull());
  EXPECT_EQ(empty.length(), 0U);
  EXPECT_TRUE(transport->hasMore(0));
  EXPECT_EQ(transport->pull(false), "xyz");
  EXPECT_TRUE(transport->pull(false).isNull()) << "nothing waits";
  EXPECT_TRUE(transport->isConnected());
  EXPECT_THAT(g_log, IsEmpty());

  transport->traceMessages = true;
  transport->push("ab");
  peer.send(std::string("\0\0\0\2cd", 6));
  transport->pull(true);
  EXPECT_THAT(g_log, ElementsAre("TRANSPORT: Wrote message \"ab\"", "TRANSPORT: Got message (len=2) \"cd\""));
}

TEST_P(ATransport, ContinuesInterruptedAndPartialCalls) {
  connect();
  StubbornSystem system;
  system.dribbles = true;
  transport->push("slowly");
  EXPECT_EQ(peer.receive(10), std::string("\0\0\0\6slowly", 10));
  peer.send(std::string("\0\0\0\6slowly", 10));
  EXPECT_TRUE(transport->hasMore(1000));
  EXPECT_EQ(transport->pull(true), "slowly");
}

TEST_P(ATransport, TakesAnOverlongHeaderForGarbage) {
  for (const std::string& header : {std::string("\1\0\0\0", 4), std::string("\xFF\xFF\xFF\xFF", 4)}) {
    connect();
    peer.send(header);
    EXPECT_TRUE(transport->pull(true).isNull());
    EXPECT_FALSE(transport->isConnected());
    transport->disconnect();
    peer.hangUp();
  }
  const std::string line = "ZELTO ERROR - " + name() + "::pull(), len > 0x00FFFFFF, most likely garbage";
  EXPECT_THAT(g_log, ElementsAre(line, line));
}

TEST_P(ATransport, LosesTheMessageAndTheConnectionAtTheEndOfTheStream) {
  // Before, within and right after the header, in the middle of a body, and where 16 MB were announced.
  for (const std::string& bytes : {std::string(), std::string("\0\0", 2), std::string("\0\0\0\5", 4),
                                   std::string("\0\0\0\5ab", 6), std::string("\0\xFF\xFF\xFF", 4)}) {
    connect();
    peer.send(bytes);
    peer.hangUp();
    EXPECT_TRUE(transport->hasMore(1000)) << "the end can be read";
    EXPECT_TRUE(transport->pull(false).isNull());
    EXPECT_FALSE(transport->isConnected());
    transport->disconnect();
  }
  EXPECT_THAT(g_log, IsEmpty());
}

TEST_P(ATransport, WritesToAClosedStreamWithoutASignal) {
  connect();
  peer.hangUp();
  for (int i = 0; i < 1000 && transport->isConnected(); ++i) transport->push("anybody there?");
  EXPECT_FALSE(transport->isConnected());
  EXPECT_THAT(g_log, IsEmpty());
}

TEST_P(ATransport, StopsWhenWaitingFails) {
  connect();
  {
    StubbornSystem system;
    system.waitFails = true;
    EXPECT_TRUE(transport->hasMore(0));
  }
  EXPECT_FALSE(transport->isConnected());
  const std::string reason = GetParam() == AF_UNIX ? "" : ", error: Cannot allocate memory";
  EXPECT_THAT(g_log, ElementsAre("ZELTO ERROR - " + name() + "::hasMore(), select() failed" + reason));
}

TEST_P(ATransport, UsesDescriptorsBeyondSelectAndKeepsThemFromChildren) {
  rlimit limit;
  getrlimit(RLIMIT_NOFILE, &limit);
  if (limit.rlim_max < 2000) GTEST_SKIP() << "this machine allows too few descriptors";
  const rlimit raised{std::max<rlim_t>(limit.rlim_cur, 2000), limit.rlim_max};
  setrlimit(RLIMIT_NOFILE, &raised);
  StubbornSystem system;
  system.lowestDescriptor = 1500;
  connect();
  EXPECT_GE(transport->getSocket(), 1500);
  EXPECT_NE(fcntl(transport->getSocket(), F_GETFD) & FD_CLOEXEC, 0);
  EXPECT_FALSE(transport->hasMore(0));
  peer.send(std::string("\0\0\0\1x", 5));
  EXPECT_TRUE(transport->hasMore(1000));
  EXPECT_EQ(transport->pull(false), "x");
  transport->disconnect();
  setrlimit(RLIMIT_NOFILE, &limit);
}

TEST(ALocalTransport, TriesOnceMoreAfterAnInvalidArgument) {
  for (const int failures : {1, 2}) {
    Peer peer(AF_UNIX);
    const std::unique_ptr<ZETransport> transport = peer.makeTransport();
    StubbornSystem system;
    system.connectFailures = failures;
    EXPECT_EQ(transport->connect(), failures == 1);
    EXPECT_EQ(system.connects, 2);
    transport->disconnect();
  }
  ZESocketTransport tooLong(ZEString(std::string(108, 'x').c_str()));
  EXPECT_FALSE(tooLong.connect()) << "no address holds that path";
  tooLong.disconnect();
}

TEST(ALocalTransport, CarriesTheLongestMessageAndDropsALongerOne) {
  ScriptedRuntime runtime;
  ZESocketTransport transport(runtime.path().c_str());
  ASSERT_TRUE(transport.connect());
  const std::string longest(0x00FFFFFF, 'y');
  transport.push((longest + 'y').c_str());
  transport.push(longest.c_str());
  ASSERT_TRUE(runtime.waitForMessages(1));
  EXPECT_TRUE(runtime.messages()[0] == longest);
  runtime.sendMessage(longest);
  EXPECT_TRUE(transport.pull(true) == longest.c_str());
  transport.disconnect();
}

}  // namespace
