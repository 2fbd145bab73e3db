// What the dial rules know of each country.
#pragma once

// One country. Texts are never null, except in the row that ends the table, where all of them are.
struct CDATA {
  const char* iso;         // ISO 3166, two letters
  const char* idd_prefix;  // dialled to leave the country
  const char* idd_code;    // country calling code, the key of look-ups
  int area_min;            // digits of the area code and of the subscriber number
  int area_max;
  int sub_min;
  int sub_max;
  const char* remove;     // trunk prefix that national numbers carry; empty when there is none
  int rule;               // 0 'N', 1 'A', 2 'R' (as 'A'), 3 'I'
  const char* text = "";  // this and the flag are not used by any rule
  int flag = 0;
};

constexpr int kCountries = 219;
constexpr int kRules = 4;

// Ends with a row of null texts. Of rows that share an idd_code only the first is ever found.
extern const CDATA COUNTRIES[kCountries + 1];
