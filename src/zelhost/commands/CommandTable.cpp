#include "zelhost/commands/CommandTable.h"

#include <array>

#include "zelhost/commands/Handlers.h"
#include "zelhost/commands/NameIndex.h"

namespace zelhost {

namespace {

#define COMMAND(name, group, parameters, ...) Command{name, __VA_ARGS__},
constexpr Command kCommands[] = {
#include "zelhost/commands/Commands.def"
};
#undef COMMAND

constexpr std::size_t kCount = sizeof kCommands / sizeof kCommands[0];
static_assert(kCount == 228, "the widget knows 228 commands");

constexpr std::array<std::string_view, kCount> Names() {
  std::array<std::string_view, kCount> names{};
  for (std::size_t i = 0; i < kCount; ++i) names[i] = kCommands[i].name;
  return names;
}

constexpr NameIndex<kCount> kIndex{Names()};
static_assert(kIndex.IsComplete(), "two commands have the same key");

}  // namespace

const Command* FindCommand(std::string_view name) {
  const std::size_t position = kIndex.Find(name.data(), name.size());
  if (position == kIndex.kNone || kCommands[position].name != name) return nullptr;
  return &kCommands[position];
}

}  // namespace zelhost
