#include "simulator/television/TelevisionState.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <initializer_list>
#include <iterator>
#include <sstream>

#include "simulator/television/ControlTable.h"

namespace television {

namespace {

// The parameters, separated by blanks.
std::string Joined(std::initializer_list<std::string_view> parameters) {
  std::string joined;
  for (const std::string_view parameter : parameters) joined.append(parameter).append(" ");
  joined.erase(joined.find_last_not_of(' ') + 1);
  return joined;
}

// An entry of a list separated by blanks; empty when there are not so many.
std::string Entry(const std::string& list, std::string_view number) {
  std::istringstream entries(list);
  std::string entry;
  for (long left = std::strtol(std::string(number).c_str(), nullptr, 10); left >= 0; --left) {
    if (!(entries >> entry)) return {};
  }
  return entry;
}

std::string FormatTime(std::string_view seconds, const char* format) {
  const std::time_t time = std::strtol(std::string(seconds).c_str(), nullptr, 10);
  std::tm local{};
  localtime_r(&time, &local);
  char text[32];
  return std::string(text, std::strftime(text, sizeof text, format, &local));
}

}  // namespace

TelevisionState::TelevisionState() {
  for (const StateRow& row : kInitialState) m_values.emplace(row.name, row.initial);
}

bool TelevisionState::Knows(std::string_view command) {
  return std::any_of(std::begin(kControls), std::end(kControls),
                     [&](const ControlRow& row) { return command == row.command; });
}

std::string TelevisionState::Control(std::string_view command, std::string_view p1, std::string_view p2,
                                     std::string_view p3, std::string_view p4) {
  std::string answer;
  for (const ControlRow& row : kControls) {
    if (command == row.command) answer = Apply(row, p1, Joined({p1, p2, p3, p4}));
  }
  return answer;
}

std::string TelevisionState::Apply(const ControlRow& row, std::string_view first, const std::string& all) {
  std::string& value = m_values[row.value];
  switch (row.effect) {
    case ControlEffect::Answer:
      return value;
    case ControlEffect::AnswerOne:
      return Entry(value, first);
    case ControlEffect::EpochTime:
      return std::to_string(std::time(nullptr) + std::strtol(value.c_str(), nullptr, 10));
    case ControlEffect::LocalTime:
      return value = FormatTime(first, row.text);
    case ControlEffect::Store:
      value = first.empty() ? row.text : first;
      break;
    case ControlEffect::StoreAll:
      value = all.empty() ? row.text : all;
      break;
    case ControlEffect::Fixed:
      value = row.text;
      break;
    case ControlEffect::Snapshot:
      value = all;
      return m_capture && m_capture() ? "1" : "0";
  }
  m_setByEngine.insert(row.value);
  return "1";
}

void TelevisionState::Event(int type) {
  for (const EventRow& row : kEventEffects) {
    if (row.type != type) continue;
    m_values[row.value] = row.text;
    m_setByEngine.insert(row.value);
  }
}

std::string TelevisionState::Get(const std::string& name) const {
  const auto found = m_values.find(name);
  return found == m_values.end() ? std::string() : found->second;
}

bool TelevisionState::Set(const std::string& name, const std::string& value) {
  const auto found = m_values.find(name);
  if (found == m_values.end()) return false;
  found->second = value;
  return true;
}

}  // namespace television
