// A command by name against a script function by name, and finding the name against gperf's hash. Both get
// the same names in the same random order, one in 64 of them unknown, and four texts.
#include <benchmark/benchmark.h>
#include <lua.hpp>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/ZeltoImp.h"
#include "Common/ZeltoManager.h"
#include "execute_gperf.h"
#include "tests/support/RecordingManagers.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/commands/CommandTable.h"

// Managers that answer from memory stand behind the facades.
CZeltoManagerImp* CZeltoImp::CreateZeltoManagerImp() { return CZelhostZeltoManager::GetInstance(); }
CAccountManagerImp* CZeltoImp::CreateAccountManagerImp() { return new recording::AccountManager; }
CContactManagerImp* CZeltoImp::CreateContactManagerImp() { return new recording::ContactManager; }
CCallManagerImp* CZeltoImp::CreateCallManagerImp() { return new recording::CallManager; }
CHistoryManagerImp* CZeltoImp::CreateHistoryManagerImp() { return new recording::HistoryManager; }
CChatManagerImp* CZeltoImp::CreateChatManagerImp() { return new recording::ChatManager; }

namespace {

constexpr const char* kNames[] = {
#define COMMAND(name, ...) name,
#include "zelhost/commands/Commands.def"
#undef COMMAND
};
constexpr const char* kUnknown[] = {"GetNumOfContact",   "Zoom", "SetDebugLevels", "getCallType", "Lo",
                                    "StartIncomingRang", "",     "IsCallInHole"};
constexpr std::size_t kParameters = 4;

// What a caller passes: names of people, positions, what somebody wrote, nothing.
std::string ParameterText(std::size_t i) {
  switch (i % 4) {
    case 0:
      return "person" + std::to_string(i) + "@example";
    case 1:
      return std::to_string(i);
    case 2:
      return "Hello, this is number " + std::to_string(i);
    default:
      return "";
  }
}

// The calls that everybody makes: each known name equally often, in a random order, with texts of the
// caller's own that change from call to call.
class Calls {
 public:
  struct Call {
    const char* name;
    const char* parameters[kParameters];
  };

  static const std::vector<Call>& Get() {
    static const Calls calls;
    return calls.m_calls;
  }

 private:
  static constexpr int kRounds = 16;
  static constexpr std::size_t kUnknownEvery = 64;
  static constexpr std::size_t kTexts = 256;

  Calls() : m_names(std::begin(kNames), std::end(kNames)) {
    m_names.insert(m_names.end(), std::begin(kUnknown), std::end(kUnknown));
    for (std::size_t i = 0; i < kTexts; ++i) m_texts.push_back(ParameterText(i));
    std::mt19937 random(20261124);
    for (int round = 0; round < kRounds; ++round) {
      for (std::size_t name = 0; name < std::size(kNames); ++name) {
        Add(m_names[name], random);
        if (m_calls.size() % kUnknownEvery != kUnknownEvery - 1) continue;
        Add(m_names[std::size(kNames) + m_calls.size() / kUnknownEvery % std::size(kUnknown)], random);
      }
    }
    std::shuffle(m_calls.begin(), m_calls.end(), random);
  }

  void Add(const std::string& name, std::mt19937& random) {
    Call call{name.c_str(), {}};
    for (auto& parameter : call.parameters) parameter = m_texts[random() % kTexts].c_str();
    if (name == "SetDebugLevel") call.parameters[0] = "0";  // what is measured is not the log
    m_calls.push_back(call);
  }

  std::vector<std::string> m_names;
  std::vector<std::string> m_texts;
  std::vector<Call> m_calls;
};

const char* AnswerOfTheTelevision(const char*, const char*, const char*, const char*, const char*, void*) {
  return "50";
}

// No runtime's executable and no widget's folder: said from memory, without asking the operating system.
class DeviceWithoutFiles : public zelto::Platform {
  int Open(const char*, int, mode_t) override { return Missing(); }
  int Access(const char*, int) override { return Missing(); }
  static int Missing() {
    errno = ENOENT;
    return -1;
  }
};

CZelhostZeltoManager& Host() {
  static DeviceWithoutFiles device;
  static CZelhostZeltoManager& host = []() -> CZelhostZeltoManager& {
    zelto::g_debugLevel = 0;
    zelto::SetSystem(&device);
    CZeltoManager::GetInstance()->RegisterCommonCtrlFunc(AnswerOfTheTelevision, nullptr);
    return *CZelhostZeltoManager::GetInstance();
  }();
  return host;
}

// A state in which every name stands for a function of four texts that answers one.
class Script {
 public:
  Script() : m_state(luaL_newstate()) {
    for (const char* name : kNames) {
      const std::string source =
          "function " + std::string(name) + "(a, b, c, d) return 'a text from memory' end";
      if (luaL_dostring(m_state, source.c_str()) != LUA_OK)
        throw std::runtime_error(lua_tostring(m_state, -1));
    }
  }
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;
  ~Script() { lua_close(m_state); }

  // Valid until the next call, as the engine's answer is for longer.
  const char* Run(const Calls::Call& call) {
    lua_settop(m_state, 0);
    if (lua_getglobal(m_state, call.name) != LUA_TFUNCTION) return "";
    for (const char* parameter : call.parameters) lua_pushstring(m_state, parameter);
    lua_call(m_state, static_cast<int>(kParameters), 1);
    return lua_tostring(m_state, -1);
  }

 private:
  lua_State* m_state;
};

template <class Run>
void RunAll(benchmark::State& state, Run run) {
  const std::vector<Calls::Call>& calls = Calls::Get();
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(run(calls[next]));
    if (++next == calls.size()) next = 0;
  }
}

void ExecuteZelto(benchmark::State& state) {
  CZelhostZeltoManager& host = Host();
  RunAll(state, [&host](const Calls::Call& call) {
    const auto& p = call.parameters;
    return host.Execute(call.name, p[0], p[1], p[2], p[3]);
  });
}

void ExecuteLua(benchmark::State& state) {
  Script script;
  RunAll(state, [&script](const Calls::Call& call) { return script.Run(call); });
}

void LookupZelto(benchmark::State& state) {
  RunAll(state, [](const Calls::Call& call) { return zelhost::FindCommand(call.name); });
}

void LookupGperf(benchmark::State& state) {
  RunAll(state, [](const Calls::Call& call) { return GperfNames::Find(call.name, std::strlen(call.name)); });
}

BENCHMARK(ExecuteZelto)->Name("Execute/zelto");
BENCHMARK(ExecuteLua)->Name("Execute/lua54");
BENCHMARK(LookupZelto)->Name("Lookup/zelto");
BENCHMARK(LookupGperf)->Name("Lookup/gperf");

}  // namespace

BENCHMARK_MAIN();
