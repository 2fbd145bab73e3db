// The program as a process of its own, started with the engine's command line.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <ctime>
#include <utility>

#include "shmipc/shmipc.h"
#include "simulator/common/Connection.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/Watchdog.h"

namespace simulator {
namespace {

constexpr char kStart[] = "1465 1986 1482=\"1\" 1553=\"10070/1.0.0.0/\" 1830=\"1.10\"";
constexpr char kStarted[] = "b 0=\"1211\"";
constexpr char kStop[] = "1465 1386 1482=\"1\"";
constexpr char kPing[] = "1465 1594 ";
constexpr char kPong[] = "b 0=\"1\"";

// Connects as soon as somebody listens.
int Connected(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  while (connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) usleep(5000);
  return descriptor;
}

class Engine {
 public:
  explicit Engine(const std::string& path) : m_connection(Connected(path)) {}

  void Tell(const std::string& request) {
    m_connection.Send("#1  a " + request);
    EXPECT_TRUE(m_connection.Flush());
  }
  // The reply behind its id; "" when the stream ends before.
  std::string Reply() {
    std::string reply;
    const auto keep = [&](std::string_view text) {
      if (text.substr(0, 3) == "#1 ") reply = text.substr(3);
    };
    while (reply.empty() && m_connection.Receive(keep)) {
    }
    return reply;
  }
  std::string Ask(const std::string& request) {
    Tell(request);
    return Reply();
  }

  Connection m_connection;
};

class TheRuntime : public ::testing::Test {
 protected:
  ~TheRuntime() override {
    if (process == 0) return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
  }

  void Start(const char* scenario = "", const std::vector<const char*>& more = {}) {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").replace_filename("zelhost");
    std::vector<const char*> words = {program.c_str(), "-s", socketFile.c_str(), "-x", "-o", "-m", "3600"};
    words.insert(words.end(), more.begin(), more.end());
    words.push_back(nullptr);
    home.Write("/scenario", scenario);
    process = fork();
    if (process != 0) return;
    setenv("HOME", home.Path().c_str(), 1);
    setenv("ZELHOST_SCENARIO", (home / "/scenario").c_str(), 1);
    execv(program.c_str(), const_cast<char**>(words.data()));
    _exit(127);
  }
  // The status as waitpid tells it.
  int Wait() {
    int status = -1;
    waitpid(std::exchange(process, 0), &status, 0);
    return status;
  }
  void EndsAndLeavesNoSocket() {
    EXPECT_EQ(0, Wait());
    EXPECT_FALSE(home.Has("/dtv/socket"));
    EXPECT_FALSE(home.Has("/.Zelto/door"));
  }

  const test::Watchdog watchdog{60};
  const test::DeviceRoot home;
  const std::string socketFile = home / "/dtv/socket";
  pid_t process = 0;
};

TEST_F(TheRuntime, EndsWhenAskedToOnSigtermAndWhenTheEngineGoesOrSendsNoFrames) {
  Start();
  Engine asking(socketFile);
  EXPECT_EQ(kStarted, asking.Ask(kStart));
  EXPECT_EQ("b ", asking.Ask(kStop));
  EXPECT_EQ("", asking.Reply());
  EndsAndLeavesNoSocket();
  Start();
  Engine babbling(socketFile);
  babbling.m_connection.SendRaw("\xff\xff\xff\xff");
  EXPECT_TRUE(babbling.m_connection.Flush());
  EndsAndLeavesNoSocket();
  Start();
  EXPECT_EQ(kPong, Engine(socketFile).Ask(kPing));
  EndsAndLeavesNoSocket();
  Start("", {"--keep"});
  EXPECT_EQ(kPong, Engine(socketFile).Ask(kPing));
  EXPECT_EQ(kPong, Engine(socketFile).Ask(kPing));
  kill(process, SIGTERM);
  EndsAndLeavesNoSocket();
}

TEST_F(TheRuntime, TurnsASecondEngineAwayAndCountsTheClockDifference) {
  Start();
  Engine engine(socketFile);
  const std::string reply = engine.Ask("1465 1935 ");
  EXPECT_NEAR(static_cast<double>(std::time(nullptr) + 3600), std::stod(reply.substr(5)), 5);
  EXPECT_EQ("", Engine(socketFile).Reply());
  EXPECT_EQ(kPong, engine.Ask(kPing));
}

TEST_F(TheRuntime, FollowsAScenarioFromItsStart) {
  Start("wait 100000\nexit status=5", {"--pace", "1000"});
  EXPECT_EQ(5, WEXITSTATUS(Wait()));
  Start("exit 3 how=kill");  // after the start request come events before its reply
  EXPECT_EQ("", Engine(socketFile).Ask(kStart));
  EXPECT_EQ(SIGKILL, WTERMSIG(Wait()));
  EXPECT_TRUE(home.Has("/dtv/socket"));  // left behind, and replaced by the next one
  Start("expect Zelto.Ping\nfreeze stop");
  Engine engine(socketFile);
  EXPECT_EQ(kStarted, engine.Ask(kStart));
  engine.Tell(kPing);
  int status = 0;
  ASSERT_EQ(process, waitpid(process, &status, WUNTRACED));
  EXPECT_TRUE(WIFSTOPPED(status));
  kill(process, SIGCONT);
  EXPECT_EQ(kPong, engine.Reply());
}

TEST_F(TheRuntime, TakesTheOtherEndsOfTheChannelsAfterTheStart) {
  SHMIPC_channel_t* const channels[] = {SHMIPC_open_audio_in_channel(1), SHMIPC_open_audio_out_channel(1),
                                        SHMIPC_open_video_in_channel(1), SHMIPC_open_video_out_channel(1)};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(0, (i % 2 == 0 ? SHMIPC_initialize_receiver : SHMIPC_initialize_sender)(channels[i]));
    EXPECT_EQ(-4, SHMIPC_wait_for_connection(channels[i], 0));
  }
  Start();
  Engine engine(socketFile);
  EXPECT_EQ(kStarted, engine.Ask(kStart));
  for (SHMIPC_channel_t* channel : channels) {
    EXPECT_EQ(0, SHMIPC_wait_for_connection(channel, 2000));
    if (channel != nullptr) shmctl(channel->segment_id, IPC_RMID, nullptr);
    SHMIPC_close_channel(channel);
  }
}

TEST_F(TheRuntime, RefusesToStartOnWhatItCannotUse) {
  Start("jump");
  EXPECT_EQ(1, WEXITSTATUS(Wait()));
  Start("", {"--nonsense"});
  EXPECT_NE(0, WEXITSTATUS(Wait()));
  home.Write("/dtv/socket", "a file of somebody else's");
  Start();
  EXPECT_EQ(1, WEXITSTATUS(Wait()));
  EXPECT_TRUE(home.Has("/dtv/socket"));
}

}  // namespace
}  // namespace simulator
