#pragma once

#include <string>
#include <string_view>

#include "Common/ThreadSafety.h"
#include "zelhost/ServiceHostMutex.h"

// Answers what the widget asks about countries and telephone numbers from the runtime's tables of countries.
// Without a runtime every answer is null, or 0. All texts share one place: an answer is valid until the next
// question. An argument may be an earlier answer.
// Threads: any; each question holds the service-host mutex.
class CountryCodes {
 public:
  // Name, calling code and ISO code of every country that has a calling code, as records, by name. Names
  // that the runtime does not have in that language are empty; so are all when the language is null.
  const char* GetCountryList(const char* language);
  // The calling code; 0 for no country.
  int GetISOCountryPrefix(const char* countryCode);
  const char* GetISOCountryName(const char* countryCode, const char* language);

  // The ISO code of the number's country; empty when it can't be told. Null for a number that is null,
  // empty, or without its leading "+".
  const char* FindCountryCodeByNumber(const char* number);
  // The number without "+" and calling code. Without a known calling code, and with 7, only the "+" goes;
  // a number without "+" stays as it is. Null for a number that is null or empty.
  const char* GetLocalNumber(const char* number);

 private:
  const char* Keep(std::string_view answer) ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());

  std::string m_strResult ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
};
