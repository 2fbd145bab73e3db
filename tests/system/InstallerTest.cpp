// The installer's client against the service as a process of its own.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apiwrapper/ZESocketTransport.h"
#include "apiwrapper/ZETCPTransport.h"
#include "apiwrapper/ZelInstall.h"
#include "simulator/installer/Checksum.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"
#include "tests/system/SwitchedOnTelevision.h"

namespace test {
namespace {

constexpr char kSocket[] = "/dtv/installer";
constexpr char kPackage[] = "/package";
constexpr char kInstalled[] = "/target/x/package";
constexpr int kSize = 100000;
constexpr char kRate[] = "150000";  // enough time for each state to be seen

// A client with its connection, over TCP or the local socket.
struct Client {
  Client(int port, bool local)
      : transport(local ? std::unique_ptr<ZETransport>(std::make_unique<ZESocketTransport>(kSocket))
                        : std::make_unique<ZETCPTransport>("127.0.0.1", port)),
        install(transport.get()) {
    EXPECT_TRUE(install.init());
  }
  ~Client() { install.cleanup(); }
  int Status() { return install.Status(done, total, speed); }
  // Asks until the state has come, or an error.
  bool Await(int state) {
    int status = Status();
    while (status != state && status != ZelInstall::STATUS_ERROR) {
      usleep(2000);
      status = Status();
    }
    return status == state;
  }

  std::unique_ptr<ZETransport> transport;
  ZelInstall install;
  int done = 0;
  int total = 0;
  int speed = 0;
};

class AnInstallerService : public ::testing::Test {
 protected:
  AnInstallerService() {
    std::string content(kSize, '\0');
    for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * i >> 3);
    root.Write(kPackage, content);
    WriteChecksum(0);
  }
  ~AnInstallerService() override { Kill(); }

  void WriteChecksum(std::uint32_t error) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08x", installer::Checksum(root / kPackage).value() ^ error);
    root.Write(std::string(kPackage) + ".crc32", digits);
  }
  void Start(std::vector<std::string> more = {}) {
    std::vector<std::string> words = {Built("zelto-installer"), "--socket", root / kSocket, "--folder",
                                      root / "/target",         "--rate",   kRate};
    words.insert(words.end(), more.begin(), more.end());
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    int ends[2];
    ASSERT_EQ(0, pipe2(ends, O_CLOEXEC));
    service = fork();
    if (service == 0) {
      dup2(ends[1], STDOUT_FILENO);
      execv(arguments[0], arguments.data());
      _exit(127);
    }
    close(ends[1]);
    char line[16] = {};
    EXPECT_GT(read(ends[0], line, sizeof line - 1), 0);
    close(ends[0]);
    port = std::atoi(line);
  }
  int Wait() {
    int status = -1;
    if (service > 0) waitpid(std::exchange(service, 0), &status, 0);
    return status;
  }
  void Kill() {
    if (service > 0) kill(service, SIGKILL);
    Wait();
  }
  // A client that has brought the service from its start to that state.
  std::unique_ptr<Client> Reach(int state) {
    auto client = std::make_unique<Client>(port, state % 2 == 0);
    ZelInstall& install = client->install;
    EXPECT_TRUE(install.Set(ZelInstall::INSTALLPATH, "/x"));
    if (state == ZelInstall::STATUS_CONNECTING) {
      EXPECT_TRUE(install.Set(ZelInstall::CONNECTTIMEOUT, "1"));
      EXPECT_TRUE(install.Download("http://nowhere/"));
    } else if (state >= ZelInstall::STATUS_DOWNLOADING) {
      EXPECT_TRUE(install.DownloadFromFile((root / kPackage).c_str()));
    }
    if (state >= ZelInstall::STATUS_INSTALLING) {
      EXPECT_TRUE(client->Await(ZelInstall::STATUS_DOWNLOAD_FINISHED));
      EXPECT_TRUE(install.CRCCheck());
      EXPECT_TRUE(install.Install());
    }
    EXPECT_TRUE(client->Await(state));
    return client;
  }
  bool IsInstalled() const { return root.Read(kInstalled) == root.Read(kPackage); }

  const Watchdog watchdog{120};
  const DeviceRoot root;
  const SurvivalCheck check;
  pid_t service = 0;
  int port = 0;
};

TEST_F(AnInstallerService, InstallsOverBothTransportsWithProgressThatGrows) {
  for (const bool local : {false, true}) {
    SCOPED_TRACE(local);
    std::filesystem::remove_all(root / "/target");
    Start();
    Client client(port, local);
    EXPECT_TRUE(client.install.Set(ZelInstall::INSTALLPATH, "/x"));
    EXPECT_TRUE(client.install.Download(("file://" + (root / kPackage)).c_str()));
    EXPECT_EQ(ZelInstall::STATUS_CONNECTING, client.Status());
    EXPECT_TRUE(client.Await(ZelInstall::STATUS_DOWNLOADING));
    int steps = 0;
    int before = client.done;
    while (client.Status() == ZelInstall::STATUS_DOWNLOADING) {
      EXPECT_EQ(kSize, client.total);
      EXPECT_GE(client.done, before);
      steps += client.done > before ? 1 : 0;
      before = client.done;
      usleep(2000);
    }
    EXPECT_GE(steps, 3);
    EXPECT_EQ(kSize, client.done);
    EXPECT_GT(client.speed, 0);
    EXPECT_TRUE(client.install.CRCCheck());
    EXPECT_TRUE(client.install.Install());
    EXPECT_FALSE(root.Has(kInstalled));
    EXPECT_TRUE(client.Await(ZelInstall::STATUS_INSTALL_FINISHED));
    EXPECT_TRUE(IsInstalled());
    client.install.Exit();
    EXPECT_EQ(0, Wait());
    EXPECT_FALSE(root.Has(kSocket));
  }
}

TEST_F(AnInstallerService, TellsAWrongChecksumAndWhatItWasAskedToFailAt) {
  Start({"--fail", "INSTALL=41", "--fail", "INSTALLING"});
  WriteChecksum(1);
  const std::unique_ptr<Client> client = Reach(ZelInstall::STATUS_DOWNLOAD_FINISHED);
  ZelInstall& install = client->install;
  EXPECT_FALSE(install.CRCCheck());
  EXPECT_EQ(32U, install.LastErrorCode());
  EXPECT_STREQ(" wrong checksum", install.LastErrorText());
  WriteChecksum(0);
  EXPECT_TRUE(install.DownloadFromFile((root / kPackage).c_str()));
  EXPECT_TRUE(client->Await(ZelInstall::STATUS_DOWNLOAD_FINISHED));
  EXPECT_TRUE(install.CRCCheck());
  EXPECT_FALSE(install.Install());
  EXPECT_EQ(41U, install.LastErrorCode());
  EXPECT_TRUE(install.Install());
  EXPECT_FALSE(client->Await(ZelInstall::STATUS_INSTALL_FINISHED));
  EXPECT_EQ(90U, install.LastErrorCode());
  EXPECT_FALSE(root.Has(kInstalled));
  EXPECT_TRUE(install.Install());
  EXPECT_TRUE(client->Await(ZelInstall::STATUS_INSTALL_FINISHED));
}

TEST_F(AnInstallerService, WhoseDeathInAnyStateEndsEveryOperationWithAFailure) {
  for (int state = ZelInstall::STATUS_READY; state <= ZelInstall::STATUS_INSTALL_FINISHED; ++state) {
    SCOPED_TRACE(state);
    Start();
    const std::unique_ptr<Client> client = Reach(state);
    Kill();
    ZelInstall& install = client->install;
    EXPECT_EQ(ZelInstall::STATUS_ERROR, client->Status());
    EXPECT_FALSE(install.CRCCheck() || install.Install() || install.Download("file:///x") ||
                 install.DownloadFromFile("/x") || install.Set(ZelInstall::HTTPPROXY, "x"));
    EXPECT_EQ(0U, install.LastErrorCode());
    EXPECT_FALSE(client->transport->isConnected());
    EXPECT_FALSE(install.init());
    EXPECT_TRUE(IsInstalled() == (state == ZelInstall::STATUS_INSTALL_FINISHED));
  }
}

TEST_F(AnInstallerService, GoesOnWithItsWorkWhenAClientVanishesInAnyState) {
  for (int state = ZelInstall::STATUS_READY; state <= ZelInstall::STATUS_INSTALL_FINISHED; ++state) {
    SCOPED_TRACE(state);
    Start();
    {
      const std::unique_ptr<Client> client = Reach(state);
      // In the middle of a frame, or with what cannot be one.
      const std::string_view last =
          state % 2 == 0 ? std::string_view("\0\0\0\x09STA", 7) : "\xff\xff\xff\xff";
      EXPECT_GT(send(client->transport->getSocket(), last.data(), last.size(), MSG_NOSIGNAL), 0);
    }
    Client next(port, state % 2 != 0);
    const int resting = state == ZelInstall::STATUS_DOWNLOADING  ? ZelInstall::STATUS_DOWNLOAD_FINISHED
                        : state == ZelInstall::STATUS_INSTALLING ? ZelInstall::STATUS_INSTALL_FINISHED
                        : state == ZelInstall::STATUS_CONNECTING ? ZelInstall::STATUS_ERROR
                                                                 : state;
    next.Await(resting);
    EXPECT_EQ(resting, next.Status());
    EXPECT_TRUE(next.install.DownloadFromFile((root / kPackage).c_str()));
    Kill();
  }
}

TEST_F(AnInstallerService, IsDrivenByTheTelevisionsWordWhichFailsLikeAnyOtherLine) {
  Start({"--fail", "CRCCHECK=77"});
  root.Write("/script", "install " + (root / kPackage) + " 127.0.0.1:" + std::to_string(port) + "\n");
  const std::string command = Built("zelto-tv") + " --device-root " + root.Path() + " --script " +
                              (root / "/script") + " --log /dev/null > " + (root / "/output");
  EXPECT_NE(0, std::system(command.c_str()));
  EXPECT_NE(std::string::npos, root.Read("/output").find("the check failed: error 77 failed as"))
      << root.Read("/output");
  EXPECT_EQ(0, std::system(command.c_str()));
  const std::string output = root.Read("/output");
  for (const char* part :
       {"downloading [", "[####################] 97 KB of 97 KB", "installing  [", "= installed"})
    EXPECT_NE(std::string::npos, output.find(part)) << part << output;
  EXPECT_EQ(0, Wait());
}

}  // namespace
}  // namespace test
