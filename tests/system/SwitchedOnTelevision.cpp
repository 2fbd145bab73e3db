#include "tests/system/SwitchedOnTelevision.h"

#include <dirent.h>
#include <signal.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "simulator/television/Door.h"

namespace test {

namespace fs = std::filesystem;

namespace {

// The parent of a process, 0 when it is gone.
pid_t ParentOf(const std::string& process) {
  std::ifstream status("/proc/" + process + "/stat");
  std::string line;
  std::getline(status, line);
  const std::size_t behindName = line.rfind(')');
  if (behindName == std::string::npos || line.compare(behindName + 2, 1, "Z") == 0) return 0;
  return static_cast<pid_t>(std::strtol(line.c_str() + behindName + 4, nullptr, 10));
}

}  // namespace

std::string Built(const char* name) {
  const char* folder = std::getenv("ZELTO_BUILD");
  return std::string(folder != nullptr ? folder : "build/release") + '/' + name;
}

ATelevision::ATelevision() {
  m_root.Furnish(Built("zelhost"));
  setenv("ZELTO_DEVICE_ROOT", m_root.Path().c_str(), 1);
  unsetenv("ZELHOST_SCENARIO");
}

ATelevision::~ATelevision() {
  SwitchOff();
  unsetenv("ZELTO_DEVICE_ROOT");
  unsetenv("ZELHOST_SCENARIO");
}

void ATelevision::SwitchOnWithoutService() {
  m_host.Mark();
  m_library = std::make_unique<television::EngineLibrary>(EngineUnderTest());
  m_host.Attach(m_library->Engine());
}

void ATelevision::SwitchOn() {
  SwitchOnWithoutService();
  m_host.StartService(m_library->Engine());
}

void ATelevision::SwitchOnAndWait() {
  SwitchOn();
  ASSERT_TRUE(Arrives(kRuntimeReady, nullptr, 30));
}

std::chrono::milliseconds ATelevision::SwitchOff() {
  const auto start = std::chrono::steady_clock::now();
  m_library.reset();
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
}

std::string ATelevision::Execute(const char* command, const char* p1, const char* p2, const char* p3,
                                 const char* p4) {
  return Engine().Execute(command, p1, p2, p3, p4);
}

bool ATelevision::Arrives(int event, const char* parameter, int seconds) {
  return m_host.WaitFor(
      [&](const television::Report& report) {
        if (report.kind != television::Report::Kind::Event || report.type != event) return false;
        return parameter == nullptr || (!report.parameters.empty() && report.parameters[0] == parameter);
      },
      std::chrono::seconds(seconds));
}

void ATelevision::SignIn(const char* name, const char* password) {
  ASSERT_EQ(Execute("Login", name, password, "1"), "1");
  ASSERT_TRUE(Arrives(kLoggedIn));
  ASSERT_TRUE(Arrives(kContactListInSync));
  ASSERT_EQ(Execute("GetLoginState"), "2");
}

pid_t ATelevision::Runtime() const {
  for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
    const std::string process = entry.path().filename();
    if (process.find_first_not_of("0123456789") != std::string::npos || ParentOf(process) != getpid())
      continue;
    std::ifstream name(entry.path() / "comm");
    std::string program;
    std::getline(name, program);
    if (program == "zelhost") return static_cast<pid_t>(std::stol(process));
  }
  return 0;
}

void ATelevision::SignalRuntime(int signal) const {
  pid_t runtime = Runtime();
  // A process that has just been started bears its program's name a moment later.
  for (int step = 0; runtime == 0 && step < 100; ++step, runtime = Runtime()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  ASSERT_NE(runtime, 0);
  ASSERT_EQ(kill(runtime, signal), 0);
}

bool ATelevision::Ends(pid_t process, int seconds) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  while (kill(process, 0) == 0) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

std::string ATelevision::Door(const std::string& order) const {
  return television::OrderThroughDoor(m_root.Door(), order);
}

void ATelevision::FollowScenario(const std::string& steps) const {
  const std::string file = Path("/tmp/scenario");
  std::ofstream(file) << steps;
  setenv("ZELHOST_SCENARIO", file.c_str(), 1);
}

}  // namespace test
