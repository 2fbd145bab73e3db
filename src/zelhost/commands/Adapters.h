// What most rows of the command table are made of: templates that take a command's arguments out of its
// texts, call one operation and write the result as a text.
#pragma once

#include <charconv>
#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

#include "Common/ZeltoManager.h"
#include "zelhost/commands/CommandCall.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

namespace zelhost {

// --- Arguments: each takes one value out of the call.

template <int Number>
struct Text {
  static const char* From(const CommandCall& call) { return call.Parameter(Number); }
};
template <int Number>
struct TextOrNull {
  static const char* From(const CommandCall& call) {
    return call.IsEmpty(Number) ? nullptr : call.Parameter(Number);
  }
};
template <int Number>
struct Int {
  static int From(const CommandCall& call) { return call.Int(Number); }
};
// A negative number arrives as one too large for any slot.
template <int Number>
struct Unsigned {
  static unsigned From(const CommandCall& call) { return static_cast<unsigned>(call.Int(Number)); }
};
template <int Number>
struct Flag {
  static bool From(const CommandCall& call) { return call.Flag(Number); }
};
// Seconds as the milliseconds that the operations count in.
template <int Number>
struct Seconds {
  static int From(const CommandCall& call) { return zelto::NearestInt(1000LL * call.Int(Number)); }
};
template <auto Value>
struct Constant {
  static constexpr auto From(const CommandCall&) { return Value; }
};
struct EmptyText {
  static const char* From(const CommandCall&) { return ""; }
};

// --- Answers.

inline void Answer(std::string& answer, bool value) { answer.assign(1, value ? '1' : '0'); }
inline void Answer(std::string& answer, const char* text) { answer.assign(text != nullptr ? text : ""); }
inline void Answer(std::string& answer, std::string&& text) { answer = std::move(text); }
template <class Number>
std::enable_if_t<std::is_same_v<Number, int> || std::is_same_v<Number, unsigned>> Answer(std::string& answer,
                                                                                         Number value) {
  char digits[12];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  answer.assign(digits, static_cast<std::size_t>(end - digits));
}
inline void AnswerDone(std::string& answer) { Answer(answer, true); }

// --- Operations of the facades and of the service host's managers, all reached through GetInstance().

template <class Class, class Result, class... Arguments>
Class* InstanceOf(Result (Class::*)(Arguments...)) {
  return Class::GetInstance();
}
template <class Class, class Result>
const Class* InstanceOf(Result (Class::*)() const) {
  return Class::GetInstance();
}

// Answers what the operation answers.
template <auto Operation, class... Arguments>
void Ask(const CommandCall& call, std::string& answer) {
  Answer(answer, (InstanceOf(Operation)->*Operation)(Arguments::From(call)...));
}

// Runs the operation and answers "1" whatever came of it.
template <auto Operation, class... Arguments>
void Do(const CommandCall& call, std::string& answer) {
  (InstanceOf(Operation)->*Operation)(Arguments::From(call)...);
  AnswerDone(answer);
}

// Chooses one of an operation's overloads by its signature.
template <class Signature, class Class>
constexpr auto Overload(Signature Class::*operation) {
  return operation;
}

// --- Settings, by their index.

template <int Setting>
void ReadInt(const CommandCall&, std::string& answer) {
  Answer(answer, CZelhostLocalSetting::GetIntValue(Setting));
}

template <int Setting>
void ReadText(const CommandCall&, std::string& answer) {
  const ZEString value = CZelhostLocalSetting::GetStrValue(Setting);
  Answer(answer, static_cast<const char*>(value));
}

template <int Setting>
void StoreInt(const CommandCall& call, std::string& answer) {
  CZelhostLocalSetting::SetIntValue(Setting, call.Int(1));
  AnswerDone(answer);
}

template <int Setting>
void StoreFlag(const CommandCall& call, std::string& answer) {
  CZelhostLocalSetting::SetIntValue(Setting, call.Flag(1) ? 1 : 0);
  AnswerDone(answer);
}

template <int Setting>
void StoreText(const CommandCall& call, std::string& answer) {
  CZelhostLocalSetting::SetStrValue(Setting, ZEString(call.Parameter(1)));
  AnswerDone(answer);
}

// An empty parameter stores nothing.
template <int Setting>
void StoreIntUnlessEmpty(const CommandCall& call, std::string& answer) {
  const bool given = !call.IsEmpty(1);
  if (given) CZelhostLocalSetting::SetIntValue(Setting, call.Int(1));
  Answer(answer, given);
}

// --- The television. The host control has the command's own name; the answer is the television's.

inline void Host(const CommandCall& call, std::string& answer) {
  Answer(answer, CZeltoManager::CallCommonControl(call.Name()));
}

inline void HostWithText(const CommandCall& call, std::string& answer) {
  Answer(answer, CZeltoManager::CallCommonControl(call.Name(), call.Parameter(1)));
}

// The same with another name than the command's.
template <const char* Name>
void HostControl(const CommandCall&, std::string& answer) {
  Answer(answer, CZeltoManager::CallCommonControl(Name));
}

// Keeps the value as a setting before the television is told.
template <int Setting, const char* Name>
void StoreIntAndTellHost(const CommandCall& call, std::string& answer) {
  CZelhostLocalSetting::SetIntValue(Setting, call.Int(1));
  Answer(answer, CZeltoManager::CallCommonControl(Name, call.Parameter(1)));
}

// --- Events.

template <int Type>
void RaiseEvent(const CommandCall&, std::string& answer) {
  CZeltoManager::SendEvent(Type, 0);
  AnswerDone(answer);
}

template <int Type>
void NotifyHost(const CommandCall&, std::string& answer) {
  CZeltoManager::NotifyHardwiredEvent(static_cast<unsigned>(Type), nullptr, nullptr);
  AnswerDone(answer);
}

// For names that the widget may use although nothing is behind them.
inline void Nothing(const CommandCall&, std::string& answer) { answer.clear(); }

}  // namespace zelhost
