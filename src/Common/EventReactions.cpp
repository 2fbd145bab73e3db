#include "Common/EventReactions.h"

#include <array>
#include <cstdint>
#include <iterator>

#include "Common/EventReactionTable.h"

namespace zelto {
namespace {

using reactions::kLastReaction;
using reactions::kReactions;

constexpr std::size_t kTypes = kLastReaction - kFirstEventType + 1;

constexpr bool IsOrdered() {
  for (std::size_t row = 1; row < std::size(kReactions); ++row) {
    if (kReactions[row].type < kReactions[row - 1].type) return false;
  }
  return kReactions[0].type >= kFirstEventType && kReactions[std::size(kReactions) - 1].type == kLastReaction;
}
static_assert(IsOrdered(), "the reactions are ordered by event");

// For each type the first row that is not of an earlier one; one entry more, for the end of the last.
constexpr std::array<std::uint8_t, kTypes + 1> FirstRows() {
  static_assert(std::size(kReactions) < 256);
  std::array<std::uint8_t, kTypes + 1> first{};
  std::size_t row = 0;
  for (std::size_t type = 0; type <= kTypes; ++type) {
    while (row < std::size(kReactions) && kReactions[row].type < kFirstEventType + static_cast<int>(type)) {
      ++row;
    }
    first[type] = static_cast<std::uint8_t>(row);
  }
  return first;
}
constexpr auto kFirstRows = FirstRows();

}  // namespace

void ReactToEvent(const CZeltoEvent& event, ReactionState& state) {
  if (event.type < kFirstEventType || event.type > kLastReaction) return;
  const auto type = static_cast<std::size_t>(event.type - kFirstEventType);
  for (std::size_t row = kFirstRows[type]; row < kFirstRows[type + 1]; ++row) {
    const reactions::Reaction& reaction = kReactions[row];
    if (reaction.when()) reaction.step(event, reaction.argument, state);
  }
}

}  // namespace zelto
