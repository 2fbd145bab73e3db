#include "simulator/television/ContactList.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "simulator/television/Records.h"

namespace television {

namespace {

// Fields of a record.
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
  for (Record& fields : ReadRecords(records, kFields)) {
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
