// A television with the built library and the built runtime, as real processes, each test with a device
// root of its own.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>

#include "simulator/television/DeviceRoot.h"
#include "simulator/television/EngineLibrary.h"
#include "simulator/television/Host.h"

namespace test {

constexpr char kDemoName[] = "demo";
constexpr char kDemoPassword[] = "demo1234";

// Engine events that tests wait for.
constexpr int kLoggedIn = 256;
constexpr int kLoggedOut = 257;
constexpr int kContactListInSync = 271;
constexpr int kNameChanged = 345;
constexpr int kMoodChanged = 347;
constexpr int kRuntimeReady = 371;
constexpr int kCommitted = 387;
constexpr int kCommitting = 388;
constexpr int kCommitFailed = 389;

// States that "GetZeltoState" answers.
constexpr char kLoaded[] = "1";
constexpr char kUnloaded[] = "3";

// A file of the build by its name.
std::string Built(const char* name);
// The engine's library; each test program says which one it tests (empty: the one linked into it).
std::string EngineUnderTest();

class ATelevision : public ::testing::Test {
 protected:
  ATelevision();
  ~ATelevision() override;

  // Creates the engine and registers the callbacks but the last, which would load the service.
  void SwitchOnWithoutService();
  // Creates the engine and registers all callbacks, so that the service is being loaded.
  void SwitchOn();
  // The same, and waits until the runtime is ready.
  void SwitchOnAndWait();
  // Ends the engine; answers how long that took.
  std::chrono::milliseconds SwitchOff();
  IMoIPEngine& Engine() { return m_library->Engine(); }

  std::string Execute(const char* command, const char* p1 = nullptr, const char* p2 = nullptr,
                      const char* p3 = nullptr, const char* p4 = nullptr);
  // Whether the event arrived, after those waited for before; `parameter` null takes any.
  bool Arrives(int event, const char* parameter = nullptr, int seconds = 15);
  // Signs in with a password and waits until the contact list is in sync.
  void SignIn(const char* name = kDemoName, const char* password = kDemoPassword);

  // The runtime's process, 0 when there is none.
  pid_t Runtime() const;
  void SignalRuntime(int signal) const;
  // Whether the runtime's process ends within the time.
  static bool Ends(pid_t process, int seconds);
  // An order through the runtime's test door; its answer.
  std::string Door(const std::string& order) const;
  // Where a path of the television lies.
  std::string Path(const std::string& path) const { return m_root.Path() + path; }
  // Makes the next runtime follow a scenario from its first moment.
  void FollowScenario(const std::string& steps) const;

  television::Host m_host;

 private:
  television::DeviceRoot m_root{""};
  std::unique_ptr<television::EngineLibrary> m_library;
};

}  // namespace test
