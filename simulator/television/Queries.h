#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Common/IMoIPEngine.h"

namespace television {

// A question that a television asks the engine directly, beside the string commands.
struct Query {
  const char* name;
  const char* parameters;  // for help
  // Asks and answers the values, readable; "no" when the engine has no answer.
  std::string (*ask)(IMoIPEngine& engine, const std::vector<std::string>& parameters);
};

// All of them, in the order of the interface.
const std::vector<Query>& Queries();

// Null for an unknown name.
const Query* FindQuery(std::string_view name);

}  // namespace television
