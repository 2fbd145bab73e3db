#include "simulator/television/TelevisionState.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <iterator>

#include "simulator/television/ControlTable.h"

namespace television {

namespace {

const ControlRow* FindControl(std::string_view command) {
  const auto row = std::find_if(std::begin(kControls), std::end(kControls),
                                [&](const ControlRow& candidate) { return command == candidate.command; });
  return row == std::end(kControls) ? nullptr : row;
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

bool TelevisionState::Knows(std::string_view command) { return FindControl(command) != nullptr; }

std::string TelevisionState::Control(std::string_view command, std::string_view p1, std::string_view p2,
                                     std::string_view p3, std::string_view p4) {
  const ControlRow* row = FindControl(command);
  if (row == nullptr) return {};
  std::string& value = m_values[row->value];
  switch (row->effect) {
    case ControlEffect::Answer:
      return value;
    case ControlEffect::EpochTime:
      return std::to_string(std::time(nullptr) + std::strtol(value.c_str(), nullptr, 10));
    case ControlEffect::LocalTime:
      return value = FormatTime(p1, row->text);
    case ControlEffect::Store:
      value = p1;
      break;
    case ControlEffect::Fixed:
      value = row->text;
      break;
    case ControlEffect::StoreRect:
      value.assign(p1).append(" ").append(p2).append(" ").append(p3).append(" ").append(p4);
      break;
  }
  return "1";
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
