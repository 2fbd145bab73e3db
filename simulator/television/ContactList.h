#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace television {

// A contact as the engine lists it.
struct Contact {
  std::string identity;
  std::string phone;
  std::string displayName;
  int availability = 0;
  std::string picture;
  std::string mood;
};

// The contacts of the engine's list queries; an incomplete record at the end is left out.
std::vector<Contact> ReadContacts(std::string_view records);

// "online"; never null.
const char* PresenceWord(int availability);

}  // namespace television
