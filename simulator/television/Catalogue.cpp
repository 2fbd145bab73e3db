#include "simulator/television/Catalogue.h"

#include <algorithm>
#include <cstdlib>

#include "Common/EventTypes.h"

namespace television {

const std::vector<Command>& Commands() {
  static const std::vector<Command> commands = {
#define COMMAND(name, group, parameters, ...) {name, #group, parameters},
#include "zelhost/commands/Commands.def"
#undef COMMAND
  };
  return commands;
}

const Command* FindCommand(std::string_view name) {
  const auto found = std::find_if(Commands().begin(), Commands().end(),
                                  [&](const Command& command) { return name == command.name; });
  return found == Commands().end() ? nullptr : &*found;
}

std::string EventName(int type) {
  const char* name = zelto::EventName(type);
  return name == nullptr ? std::string() : name;
}

std::vector<int> EventNumbers() {
  std::vector<int> numbers;
  for (const zelto::EventFamily& family : zelto::kEventFamilies) numbers.push_back(family.first);
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

int EventNumber(std::string_view text) {
  for (const zelto::EventFamily& family : zelto::kEventFamilies) {
    if (text == family.name) return family.first;
  }
  const std::string digits(text);
  const bool isNumber = !digits.empty() && digits.find_first_not_of("0123456789") == std::string::npos;
  return isNumber ? static_cast<int>(std::strtol(digits.c_str(), nullptr, 10)) : -1;
}

}  // namespace television
