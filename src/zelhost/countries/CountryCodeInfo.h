#pragma once

#include <string>
#include <string_view>

// A line of the picker of countries. Threads: none of its own.
class CCountryCodeInfo {
 public:
  CCountryCodeInfo(std::string_view countryName, std::string_view callingCode, std::string_view isoCode)
      : m_strCountryName(countryName), m_strCallingCode(callingCode), m_strISOCode(isoCode) {}

  // Whether the first comes before the second: by name, byte by byte.
  static bool Compare(const CCountryCodeInfo* first, const CCountryCodeInfo* second) {
    return first->m_strCountryName < second->m_strCountryName;
  }

  const std::string& CountryName() const { return m_strCountryName; }
  const std::string& CallingCode() const { return m_strCallingCode; }
  const std::string& ISOCode() const { return m_strISOCode; }

 private:
  std::string m_strCountryName;  // in the language of the list
  std::string m_strCallingCode;  // decimal
  std::string m_strISOCode;      // two letters
};
