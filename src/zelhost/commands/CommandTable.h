// All commands of the widget, found by name.
#pragma once

#include <cstddef>
#include <string_view>

#include "zelhost/commands/CommandCall.h"

namespace zelhost {

struct Command {
  std::string_view name;
  CommandHandler run;
};

// The command of that name, or null. Upper and lower case differ. Any thread.
const Command* FindCommand(std::string_view name);

}  // namespace zelhost
