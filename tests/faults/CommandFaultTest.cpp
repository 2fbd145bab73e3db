// Every command with hostile arguments, in every state of the engine's life.
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "Common/Log.h"
#include "simulator/television/Catalogue.h"
#include "tests/faults/Tour.h"
#include "tests/support/SurvivalCheck.h"

namespace test {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr char kLoading[] = "0";
constexpr char kSignedOut[] = "0";
constexpr char kSignedIn[] = "2";
constexpr milliseconds kLongestChange{15000};

struct Arguments {
  const char* kind;
  const char* texts[4];
};

const std::vector<Arguments>& HostileArguments() {
  static const std::string megabyte(1 << 20, 'x');
  static const char* const mega = megabyte.c_str();
  // clang-format off
  static const std::vector<Arguments> all = {
      {"null",           {nullptr, nullptr, nullptr, nullptr}},
      {"empty",          {"", "", "", ""}},
      {"a megabyte",     {mega, mega, mega, mega}},
      {"formats",        {"%n%s", "%n%s", "%n%s", "%n%s"}},
      {"negative",       {"-1", "-1", "-1", "-1"}},
      {"below any int",  {"-2147483649", "-2147483649", "-2147483649", "-2147483649"}},
      {"the largest int", {"2147483647", "2147483647", "2147483647", "2147483647"}},
      {"huge",           {"99999999999999999999", "99999999999999999999", "99999999999999999999", "99999999999999999999"}},
      {"a name, negative", {kDemoName, "-1", "2147483647", "-1"}},
      // The last one, since whoever signs in is told it anew.
      {"mood a megabyte", {"16", mega, mega, mega}},
  };
  // clang-format on
  return all;
}

// What the engine prints meanwhile is formatted and lost.
class Muted {
 public:
  Muted() : m_before(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0)) {
    Redirect(open("/dev/null", O_WRONLY | O_CLOEXEC));
  }
  ~Muted() { Redirect(m_before); }
  Muted(const Muted&) = delete;
  Muted& operator=(const Muted&) = delete;

 private:
  static void Redirect(int descriptor) {
    std::fflush(stdout);
    dup2(descriptor, STDOUT_FILENO);
    close(descriptor);
  }
  const int m_before;
};

class EveryCommand : public ATour {
 protected:
  // Brings a state about, and tells whether it still holds: some commands end it.
  struct State {
    std::function<void()> establish;
    std::function<bool()> holds;
    bool passesByItself = false;  // on a clock that is not fast it lasts long enough
  };

  void SetUp() override { ASSERT_TRUE(Run()) << FirstMiss(); }

  void SurvivesIn(const State& state) {
    const SurvivalCheck survival;
    {
      std::optional<TourClock> slow;
      if (state.passesByItself) slow.emplace(1);
      for (const Arguments& arguments : HostileArguments()) {
        SCOPED_TRACE(arguments.kind);
        CallAll(state, arguments);
        if (HasFailure()) break;
      }
      SwitchOff();
    }
    if (!HasFailure()) VerifySurvival();
  }

  bool HasState(const char* state) { return Execute("GetZeltoState") == state; }
  bool HasLoginState(const char* state) { return Execute("GetLoginState") == state; }

  void SwitchOnSignedIn() {
    SwitchOnAndWait();
    if (!HasLoginState(kSignedIn)) SignIn();
  }
  static void Await(const std::function<bool()>& condition) {
    const auto limit = steady_clock::now() + kLongestChange;
    while (!condition() && steady_clock::now() < limit) std::this_thread::sleep_for(milliseconds(2));
    ASSERT_TRUE(condition());
  }

 private:
  // The state is established first and whenever it does not hold any more.
  void CallAll(const State& state, const Arguments& arguments) {
    bool first = true;
    ASSERT_EQ(television::Commands().size(), 228u);
    for (const television::Command& command : television::Commands()) {
      SCOPED_TRACE(command.name);
      if (first || !state.holds()) {
        SwitchOff();
        state.establish();
        if (HasFatalFailure()) return;
        ASSERT_TRUE(state.holds());
        first = false;
      }
      Call(command.name, arguments.texts);
    }
    m_host.Mark();
  }

  void Call(const char* command, const char* const (&texts)[4]) {
    const int level = zelto::g_debugLevel;
    std::size_t length = 0;
    const char* answer = nullptr;
    {
      const Muted muted;
      zelto::g_debugLevel = static_cast<int>(zelto::LogLevel::Info);
      answer = Engine().Execute(command, texts[0], texts[1], texts[2], texts[3]);
      zelto::g_debugLevel = level;
      if (answer != nullptr) length = std::strlen(answer);
    }
    ASSERT_NE(answer, nullptr);
    EXPECT_LT(length, 64u << 20);
  }
};

}  // namespace

TEST_F(EveryCommand, SurvivesHostileArgumentsBeforeTheServiceIsLoaded) {
  SurvivesIn({[&] { SwitchOnWithoutService(); }, [&] { return HasState(kUnloaded); }});
}

TEST_F(EveryCommand, SurvivesHostileArgumentsWhileTheServiceLoads) {
  SurvivesIn({[&] { SwitchOn(); }, [&] { return HasState(kLoading); }, true});
}

TEST_F(EveryCommand, SurvivesHostileArgumentsWhileSignedOut) {
  const auto establish = [&] {
    SwitchOnAndWait();
    if (!HasLoginState(kSignedOut)) Execute("Logout", "1");
    Await([&] { return HasLoginState(kSignedOut); });
  };
  SurvivesIn({establish, [&] { return HasState(kLoaded) && HasLoginState(kSignedOut); }});
}

TEST_F(EveryCommand, SurvivesHostileArgumentsWhileSignedIn) {
  SurvivesIn({[&] { SwitchOnSignedIn(); }, [&] { return HasState(kLoaded) && HasLoginState(kSignedIn); }});
}

TEST_F(EveryCommand, SurvivesHostileArgumentsWhenTheRuntimeHasDied) {
  pid_t runtime = 0;
  const auto isDead = [&] { return !Lives(runtime); };
  const auto establish = [&] {
    SwitchOnSignedIn();
    runtime = Runtime();
    SignalRuntime(SIGKILL);
    Await(isDead);
  };
  SurvivesIn({establish, [&] { return HasState(kLoaded) && isDead(); }});
}

TEST_F(EveryCommand, SurvivesHostileArgumentsAfterAFailedStart) {
  const auto establish = [&] {
    FollowScenario("exit frame=1 how=kill\n");
    SwitchOn();
    Await([&] { return HasState(kUnloaded); });
  };
  SurvivesIn({establish, [&] { return HasState(kUnloaded); }});
}

}  // namespace test
