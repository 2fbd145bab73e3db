// The countries' numbering plans as another library collects them. The table's trunk prefixes come largely
// from there too, so that for them a comparison only finds what has changed since.
#pragma once

#include <phonenumbers/phonenumberutil.h>

#include <map>
#include <string>

#include "dial/Countries.h"

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

inline const PhoneNumberUtil& Plans() { return *PhoneNumberUtil::GetInstance(); }

// Where the row's code belongs today.
inline std::string RegionOf(const CDATA& row) {
  static const std::map<std::string, std::string> kElsewhere = {
      {"IO", "VG"},  // the Virgin Islands' code
      {"DG", "IO"},  // the island is part of the territory
      {"AN", "CW"},  // the Antilles parted; the code stayed with Curacao
  };
  const auto found = kElsewhere.find(row.iso);
  return found == kElsewhere.end() ? row.iso : found->second;
}
