#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace television {

// A string command of the engine, for help and completion.
struct Command {
  const char* name;
  const char* group;
  const char* parameters;
};

// All commands, in the engine's own order.
const std::vector<Command>& Commands();

// Null for an unknown name; names are case-sensitive.
const Command* FindCommand(std::string_view name);

// "ACCOUNT_LOGGED_IN" for 256; empty for a number without a name.
std::string EventName(int type);

// All event numbers that have a name, in order.
std::vector<int> EventNumbers();

// The number of an engine event's name or of a decimal text; -1 for anything else.
int EventNumber(std::string_view text);

}  // namespace television
