// What the orders have in common: reading their arguments, and refusing.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "simulator/runtime/Session.h"
#include "simulator/runtime/door/Orders.h"

namespace simulator {

[[noreturn]] inline void Refuse(const std::string& reason) { throw std::invalid_argument(reason); }

// An argument as text; a number too. Refuses when it is missing.
inline std::string TextOf(const nlohmann::json& order, const char* key) {
  const auto value = order.find(key);
  if (value == order.end()) Refuse(std::string(key) + " is missing");
  return value->is_string() ? value->get<std::string>() : value->dump();
}

inline std::string TextOf(const nlohmann::json& order, const char* key, const std::string& otherwise) {
  return order.contains(key) ? TextOf(order, key) : otherwise;
}

// A whole number in that range; refuses anything else.
inline int NumberOf(const nlohmann::json& order, const char* key, int least, int most) {
  const auto value = order.find(key);
  if (value == order.end() || !value->is_number_integer()) Refuse(std::string(key) + " is no number");
  const auto number = value->get<std::int64_t>();
  if (number < least || number > most) {
    Refuse(std::string(key) + " is not from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return static_cast<int>(number);
}

inline int NumberOf(const nlohmann::json& order, const char* key, int least, int most, int otherwise) {
  return order.contains(key) ? NumberOf(order, key, least, most) : otherwise;
}

// The row of that name; refuses when there is none, telling which there are.
template <typename Row, std::size_t N>
const Row& Choose(const Row (&rows)[N], const std::string& name) {
  std::string known;
  for (const Row& row : rows) {
    if (name == row.name) return row;
    known += std::string(known.empty() ? "" : ", ") + row.name;
  }
  Refuse("\"" + name + "\" is none of " + known);
}

inline std::string FromHex(const std::string& hex) {
  std::string bytes;
  if (hex.size() % 2 != 0 || hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
    Refuse("hex takes pairs of digits");
  }
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

inline Session& SessionOf(Controls& controls) {
  if (controls.session == nullptr) Refuse("no engine is connected");
  return *controls.session;
}

}  // namespace simulator
