// What a host asks directly, without a command: compositions of what the facades know.
#pragma once

#include <string>

namespace zelto {

// Every question holds the service-host mutex from its first to its last value, so that the values fit
// each other. True when the answer is complete; results are written only then, except that
// GetContactInfo may already have filled id and display name.
// Threads: any, but not from inside a host function.
class HostQueries {
 public:
  static bool IsInMyContact(const std::string& email, std::string& id);
  static bool IsLoggedIn(std::string& id);
  static bool GetRecentCall(int index, int& kind, std::string& id, std::string& displayName, int& timestamp);
  static bool GetContactInfo(int index, std::string& id, std::string& displayName, int& status,
                             std::string& avatarPath);
  static bool GetContactImage(const std::string& id, std::string& path);
  static bool GetContactStatus(const std::string& id, int& status);
  static bool GetMobilePhoneNumber(const std::string& id, std::string& number);
  static bool GetHomePhoneNumber(const std::string& id, std::string& number);
  static bool GetOfficePhoneNumber(const std::string& id, std::string& number);

  // Start the widget with a parameter; always true.
  static bool PlaceCall(const std::string& target, int type);
  static bool PlayMail(int timestamp);
};

}  // namespace zelto
