// From a number that was typed or stored to the strings that are dialled.
#pragma once

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringList.h"
#include "dial/Countries.h"

// Knows where it is dialled from: country, area and the prefixes of a private exchange. Every text may be
// null, which counts as empty. Time is linear in the length of the texts. The members are there to be read.
// Threads: none, as its ZEString values.
class ZELTO_EXPORT DialHelper {
 public:
  DialHelper(ZEString countryCode, ZEString areaCode, ZEString accessCode, ZEString internationalPrefix,
             ZEString nationalPrefix);
  DialHelper(ZEString countryCode, ZEString areaCode);

  // The first row with that calling code, a constant of the library; null when there is none.
  const CDATA* lookupCData(ZEString countryCode);
  // An area code without a number becomes null. In countries where calls go through a carrier of the
  // caller's choice the area code's first digits name it: they move to op_code and become both prefixes.
  void DoAreaCode();
  // The characters that can be dialled or that people group digits with, and a "+" at the very beginning.
  // Null for null.
  ZEString checkNumber(const ZEString& number);

  // What to try on the telephone network for an international number, with or without its "+"; the most
  // preferred comes first. In an unknown country the number as it is. Empty only when there is nothing to
  // dial: a null number in an unknown country.
  ZEStringList getPSTNDialString(ZEString number);
  // The number for a call through the service: "+" and the international form. Cleaned, but otherwise as it
  // is, when it begins with "+" already or is too short for a subscriber number. Null in an unknown country.
  ZEString getZeltoOutDialString(ZEString number);

  const CDATA* my_cdata = nullptr;  // null when the country is unknown
  ZEString country_code;
  ZEString area_code;
  ZEString op_code;  // the carrier; null where none is chosen
  ZEString access_code;
  ZEString int_prefix;
  ZEString nat_prefix;
  bool trace = false;  // every decision is printed while it is set
};
