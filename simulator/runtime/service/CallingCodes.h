// Calling codes of countries and how their numbers look, by the numbering plans of libphonenumber.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace simulator {

struct CallingCode {
  std::string country;  // ISO 3166, lower case
  int code;
  std::string example;  // a number in international form, with blanks
};

// Every country that has a calling code, by country. Collected at the first question, which takes a few
// milliseconds. Threads: any.
const std::vector<CallingCode>& CallingCodes();
// Null for a text that is no such country, in whatever case.
const CallingCode* CallingCodeOf(std::string country);
// The countries that share a calling code, the main one first; none for an unknown code.
std::vector<std::string> CountriesOf(int code);

}  // namespace simulator
