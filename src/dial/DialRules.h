// How numbers are put together for one country.
#pragma once

#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringList.h"
#include "dial/DialHelper.h"

// Every function here serves a helper whose my_cdata is not null. None changes it. Threads: as DialHelper.
namespace dial {

// "+" and the international form of a cleaned number that is long enough for a subscriber.
ZEString InternationalForm(const DialHelper& from, const ZEString& work);

// What to dial within the country for a national number that has lost its country code; never empty.
ZEStringList LocalForms(const DialHelper& from, const ZEString& national);

// Dialled from here, a number of another country (its country code first).
ZEStringList FormAbroad(const DialHelper& from, const ZEString& work);

}  // namespace dial
