#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/shm.h>
#include <sys/wait.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "shmipc/shmipc.h"
#include "tests/simulator/runtime/RuntimeProcess.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::Client;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr char kStart[] = "1465 1986 1482=\"1\" 1553=\"10070/1.0.0.0/\" 1830=\"1.10\"";
constexpr char kStop[] = "1465 1386 1482=\"1\"";
constexpr char kPing[] = "1465 1594 ";

class TheRuntime : public ::testing::Test {
 protected:
  // Signs an account in that has just been asked for, and waits until it is.
  static void SignIn(Client& engine, const std::string& name, const std::string& password) {
    ASSERT_EQ("b 0=\"1\"", engine.Ask("2046 1825 1971=\"" + name + "\""));
    engine.Tell("a 2046 1805 1137=\"1\" 2006=\"" + password + "\" 1046=\"1\"");
    while (engine.NextFrame() != "e 2046 2073 1137=\"1\" 1551=\"1782\" 1667=\"1028\"") {
    }
  }
  static std::string SettingOf(Client& engine, const std::string& key) {
    return engine.Ask("1165 1420 1887=\"" + key + "\"");
  }
  static json Order(Client& door, const json& order) {
    door.Write(order.dump() + "\n");
    return json::parse(door.NextLine(), nullptr, false);
  }
  std::string Scenario(const std::string& text) {
    const std::string path = runtime.home / "scenario";
    std::ofstream(path) << text;
    return path;
  }
  bool SocketIsThere() const { return std::filesystem::exists(runtime.Socket()); }

  test::RuntimeProcess runtime;
};

TEST_F(TheRuntime, EndsWhenAskedToAndLeavesNoSocket) {
  runtime.Start();
  Client engine(runtime.Socket());
  EXPECT_EQ("b 0=\"1211\"", engine.Ask(kStart));
  EXPECT_EQ("b ", engine.Ask(kStop));
  EXPECT_TRUE(engine.AtEnd());
  EXPECT_EQ(0, runtime.Wait());
  EXPECT_FALSE(SocketIsThere());
  EXPECT_FALSE(std::filesystem::exists(runtime.Door()));
}

TEST_F(TheRuntime, EndsOnSigtermAndWhenTheEngineGoes) {
  runtime.Start();
  {
    Client engine(runtime.Socket());
    EXPECT_EQ("b 0=\"1\"", engine.Ask(kPing));
  }
  EXPECT_EQ(0, runtime.Wait());
  EXPECT_FALSE(SocketIsThere());
  runtime.Start({"--keep"});
  {
    Client engine(runtime.Socket());
    EXPECT_EQ("b 0=\"1\"", engine.Ask(kPing));
  }
  Client next(runtime.Socket());
  EXPECT_EQ("b 0=\"1\"", next.Ask(kPing));
  runtime.Signal(SIGTERM);
  EXPECT_EQ(0, runtime.Wait());
  EXPECT_FALSE(SocketIsThere());
}

TEST_F(TheRuntime, TurnsASecondEngineAwayAndCountsTheClockDifference) {
  runtime.Start();
  Client engine(runtime.Socket());
  const std::string reply = engine.Ask("1465 1935 ");
  EXPECT_NEAR(static_cast<double>(std::time(nullptr) + 3600), std::stod(reply.substr(5)), 5);
  Client second(runtime.Socket());
  EXPECT_TRUE(second.AtEnd());
  EXPECT_EQ("b 0=\"1\"", engine.Ask(kPing));
}

TEST_F(TheRuntime, KeepsWhatItHasAcknowledgedThroughAKill) {
  runtime.Start();
  {
    Client engine(runtime.Socket());
    SignIn(engine, "demo", "demo1234");
    for (int i = 0; i < 50; ++i) {
      engine.Tell("a 1165 1549 1887=\"Lib/N" + std::to_string(i) + "\" 1667=\"" + std::to_string(i) + "\"");
    }
    EXPECT_EQ("b 0=\"1\"", engine.Ask("2046 2032 1137=\"1\" 1423=\"kept\""));
    EXPECT_EQ("b 0=\"49\"", SettingOf(engine, "Lib/N49"));
    runtime.Signal(SIGKILL);
    EXPECT_EQ(SIGKILL, WTERMSIG(runtime.Wait()));
  }
  EXPECT_TRUE(SocketIsThere());  // left behind, and replaced now
  runtime.Start();
  Client engine(runtime.Socket());
  EXPECT_EQ("b 0=\"demo\"", engine.Ask("2046 1836 "));
  EXPECT_EQ("b 0=\"1\"", engine.Ask("2046 1037 "));
  SignIn(engine, "demo", "demo1234");
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ("b 0=\"" + std::to_string(i) + "\"", SettingOf(engine, "Lib/N" + std::to_string(i)));
  }
  EXPECT_EQ("b 1423=\"kept\"", engine.Ask("2046 1879 1137=\"1\" 1857=\"1423\""));
}

TEST_F(TheRuntime, DiesAtEveryFrameThatItIsToldTo) {
  // Frames: start request, four events, reply, ping request, reply.
  for (int frame = 1; frame <= 8; ++frame) {
    const bool kills = frame % 2 == 0;
    runtime.Start({}, Scenario("exit " + std::to_string(frame) + (kills ? " how=kill" : " status=7")));
    Client engine(runtime.Socket());
    int frames = 0;
    for (const char* request : {kStart, kPing}) {
      engine.Tell(std::string("#1  a ") + request);
      if (++frames == frame) break;
      std::string text;
      while (text.compare(0, 3, "#1 ") != 0 && frames < frame) {
        text = engine.NextFrame();
        ASSERT_FALSE(text.empty());
        ++frames;
      }
      if (frames == frame) break;
    }
    EXPECT_EQ(frame, frames);
    EXPECT_EQ("", engine.NextFrame()) << frame;
    const int status = runtime.Wait();
    EXPECT_TRUE(kills ? WIFSIGNALED(status) : WIFEXITED(status) && WEXITSTATUS(status) == 7) << frame;
  }
}

TEST_F(TheRuntime, SplitsEveryFrameWhereItIsToldTo) {
  for (const char* split : {"split 1", "split 3", "split 4", "split 5", "split 9", "split byte=2 every=3"}) {
    runtime.Start({}, Scenario(split));
    Client engine(runtime.Socket());
    EXPECT_EQ("b 0=\"1211\"", engine.Ask(kStart));
    EXPECT_EQ("b 0=\"1\"", engine.Ask(kPing));
    EXPECT_EQ("b ", engine.Ask(kStop));
    EXPECT_EQ(0, runtime.Wait());
  }
}

TEST_F(TheRuntime, WaitsSoManyTimesLessAtAFasterPace) {
  runtime.Start({"--pace", "1000"}, Scenario("wait 60000\nexit status=5"));
  EXPECT_EQ(5, WEXITSTATUS(runtime.Wait()));
}

TEST_F(TheRuntime, TakesOrdersAtItsDoor) {
  runtime.Start();
  Client door(runtime.Door());
  EXPECT_FALSE(Order(door, {{"order", "status"}})["connected"].get<bool>());
  Client engine(runtime.Socket());
  SignIn(engine, "demo", "demo1234");
  EXPECT_EQ("demo", Order(door, {{"order", "status"}})["account"]);
  Order(door, {{"order", "reply"}, {"fault", "error"}, {"method", "Zelto.Ping"}});
  EXPECT_THAT(engine.Ask(kPing), StartsWith("d "));
  Order(door, {{"order", "raw"}, {"hex", "0000000261"}});
  Order(door, {{"order", "raw"}, {"hex", "62"}});
  EXPECT_EQ("ab", engine.NextFrame());
  Order(door, {{"order", "silent"}, {"on", true}});
  engine.Tell(std::string("#9  a ") + kPing);
  door.Write("{\"order\":\"frame\",\"text\":\"unheard\"}\n{\"order\":\"silent\",\"on\":false}\n");
  EXPECT_EQ("{\"ok\":true}", door.NextLine());
  EXPECT_EQ("{\"ok\":true}", door.NextLine());
  EXPECT_EQ("b 0=\"1\"", engine.Ask(kPing));
  EXPECT_FALSE(Order(door, "junk")["ok"].get<bool>());
  Order(door, {{"order", "exit"}, {"status", 3}});
  EXPECT_EQ(3, WEXITSTATUS(runtime.Wait()));
}

TEST_F(TheRuntime, FreezesUntilItIsWokenUp) {
  runtime.Start({}, Scenario("expect Zelto.Ping\nfreeze stop"));
  Client engine(runtime.Socket());
  engine.Tell(std::string("#1  a ") + kPing);
  int status = 0;
  ASSERT_GT(waitpid(-1, &status, WUNTRACED), 0);
  EXPECT_TRUE(WIFSTOPPED(status));
  runtime.Signal(SIGCONT);
  EXPECT_EQ("#1 b 0=\"1\"", engine.NextFrame());
}

TEST_F(TheRuntime, OutlivesItsDatabase) {
  runtime.Start();
  Client engine(runtime.Socket());
  EXPECT_EQ("b 0=\"\"", SettingOf(engine, "*UI/Pan"));
  std::filesystem::remove_all(runtime.home / ".Zelto");
  for (int i = 0; i < 5; ++i) {
    engine.Tell("a 1165 1549 1887=\"*UI/Pan\" 1667=\"" + std::to_string(i) + "\"");
    EXPECT_THAT(SettingOf(engine, "*UI/Pan"), Not(IsEmpty()));
  }
  EXPECT_EQ("b ", engine.Ask(kStop));
  EXPECT_EQ(0, runtime.Wait());
  runtime.Start();
  Client next(runtime.Socket());
  EXPECT_EQ("b 0=\"\"", SettingOf(next, "*UI/Pan"));
}

struct ChannelEnd {
  SHMIPC_channel_t* (*open)(int create);
  int (*initialize)(SHMIPC_channel_t* channel);
};

TEST_F(TheRuntime, TakesTheOtherEndsOfTheChannelsAfterTheStart) {
  constexpr ChannelEnd kEnds[] = {{SHMIPC_open_audio_in_channel, SHMIPC_initialize_receiver},
                                  {SHMIPC_open_audio_out_channel, SHMIPC_initialize_sender},
                                  {SHMIPC_open_video_in_channel, SHMIPC_initialize_receiver},
                                  {SHMIPC_open_video_out_channel, SHMIPC_initialize_sender}};
  setenv("ZELTO_DEVICE_ROOT", runtime.home.Path().c_str(), 1);
  std::filesystem::create_directories(runtime.home / "tmp");
  std::vector<SHMIPC_channel_t*> channels;
  for (const ChannelEnd& end : kEnds) {
    channels.push_back(end.open(1));
    ASSERT_NE(nullptr, channels.back());
    EXPECT_EQ(0, end.initialize(channels.back()));
  }
  unsetenv("ZELTO_DEVICE_ROOT");
  EXPECT_EQ(-4, SHMIPC_wait_for_connection(channels[0], 0));
  runtime.Start();
  Client engine(runtime.Socket());
  EXPECT_EQ("b 0=\"1211\"", engine.Ask(kStart));
  for (SHMIPC_channel_t* channel : channels) {
    EXPECT_EQ(0, SHMIPC_wait_for_connection(channel, 2000));
    shmctl(channel->segment_id, IPC_RMID, nullptr);
    SHMIPC_close_channel(channel);
  }
}

TEST_F(TheRuntime, RefusesToStartOnWhatItCannotUse) {
  runtime.Start({}, Scenario("jump"));
  EXPECT_EQ(1, WEXITSTATUS(runtime.Wait()));
  runtime.Start({"--nonsense"});
  EXPECT_NE(0, WEXITSTATUS(runtime.Wait()));
  std::filesystem::create_directories(runtime.home / "dtv");
  std::ofstream(runtime.Socket()) << "a file of somebody else's";
  runtime.Start();
  EXPECT_EQ(1, WEXITSTATUS(runtime.Wait()));
  EXPECT_TRUE(SocketIsThere());
}

TEST_F(TheRuntime, EndsTheStreamThatIsNoneOfFrames) {
  runtime.Start();
  Client engine(runtime.Socket());
  engine.Write("\xff\xff\xff\xff");
  EXPECT_TRUE(engine.AtEnd());
  EXPECT_EQ(0, runtime.Wait());
}

}  // namespace
}  // namespace simulator
