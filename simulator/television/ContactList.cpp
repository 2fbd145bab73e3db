#include "simulator/television/ContactList.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace television {

namespace {

constexpr std::string_view kSeparator = "\x03\x02";

// Fields of a record, each followed by the separator.
enum Field { kIdentity, kPhone, kDisplayName, kAvailability, kGender, kPicture, kMood, kFields };

struct Presence {
  int availability;
  const char* word;
};

// clang-format off
constexpr Presence kPresences[] = {
    { 1, "wants to be a contact"},
    { 5, "telephone"},
    { 7, "online"},
    { 8, "away"},
    {10, "do not disturb"},
    {11, "online"},
    {14, "online"},
    {15, "away"},
    {17, "do not disturb"},
};
// clang-format on

}  // namespace

std::vector<Contact> ReadContacts(std::string_view records) {
  std::vector<Contact> contacts;
  std::array<std::string, kFields> fields;
  std::size_t field = 0;
  for (std::size_t end; (end = records.find(kSeparator)) != std::string_view::npos;) {
    fields[field++] = std::string(records.substr(0, end));
    records.remove_prefix(end + kSeparator.size());
    if (field < kFields) continue;
    field = 0;
    const int availability = static_cast<int>(std::strtol(fields[kAvailability].c_str(), nullptr, 10));
    contacts.push_back({std::move(fields[kIdentity]), std::move(fields[kPhone]),
                        std::move(fields[kDisplayName]), availability, std::move(fields[kPicture]),
                        std::move(fields[kMood])});
  }
  return contacts;
}

const char* PresenceWord(int availability) {
  const auto* row = std::find_if(std::begin(kPresences), std::end(kPresences), [&](const Presence& presence) {
    return presence.availability == availability;
  });
  return row == std::end(kPresences) ? "offline" : row->word;
}

}  // namespace television
