// The simulated service's directory: everybody who has an account.
#include <array>

#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/SimulatedService.h"

namespace simulator {

std::vector<std::string> SimulatedService::FindPeople(const Query& query, std::size_t most) {
  std::vector<std::string> found;
  std::array<std::string, kLastSearchable + 1> person;  // texts by property
  const auto judge = [&] {
    const auto textOf = [&](int property) -> std::string_view {
      return property > 0 && property <= kLastSearchable ? person[static_cast<std::size_t>(property)]
                                                         : std::string_view();
    };
    const std::string& name = person[account::kName];
    if (!name.empty() && found.size() < most && Holds(query, textOf)) found.push_back(name);
  };
  auto rows = m_database.Ask(
      "SELECT name, property, value FROM accounts LEFT JOIN profile ON account = name AND property <= ?"
      " ORDER BY name",
      {std::int64_t{kLastSearchable}});
  while (found.size() < most && rows.Next()) {
    std::string name = rows.Text(0);
    if (name != person[account::kName]) {
      judge();
      person.fill({});
      person[account::kName] = std::move(name);
    }
    const std::int64_t property = rows.Number(1);
    if (property > account::kName && property <= kLastSearchable) {
      person[static_cast<std::size_t>(property)] = rows.Text(2);
    }
  }
  judge();
  return found;
}

}  // namespace simulator
