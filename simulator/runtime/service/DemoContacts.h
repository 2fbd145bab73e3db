// The people in the demonstration accounts' contact lists. All are accounts of the service themselves, with
// the demonstration password, or telephone numbers.
#pragma once

#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {

enum class Place {
  Listed,
  Waiting,  // asks to be authorized
  Blocked,
};

struct DemoContact {
  const char* identity;
  const char* name;  // of a telephone number: given by the user
  const char* mood;
  int gender;  // contact::Gender, 0 for not told
  const char* language;
  const char* country;
  const char* city;
  int presence;  // contact::Availability
  bool pictured;
  Place place;
};

// clang-format off
inline constexpr DemoContact kDemoContacts[] = {
    {"sndtest",      "Echo Test",      "Says what you say",     0,                "en", "",   "",           contact::kOnline,  false, Place::Listed},
    {"maria",        "Maria Sample",   "On the sofa",           contact::kFemale, "pt", "pt", "Porto",      contact::kOnline,  true,  Place::Listed},
    {"demo",         "Demo Person",    "Trying it out",         contact::kMale,   "en", "pt", "Lisbon",     contact::kOnline,  true,  Place::Listed},
    {"anna",         "Anna",           "Cooking, call later",   contact::kFemale, "de", "de", "Hamburg",    contact::kOnline,  true,  Place::Listed},
    {"bruno",        "Bruno",          "",                      contact::kMale,   "it", "it", "Turin",      contact::kAway,    true,  Place::Listed},
    {"chloe",        "Chlo\xc3\xa9",   "\xc3\x80 bient\xc3\xb4t", contact::kFemale, "fr", "fr", "Lyon",     contact::kBusy,    true,  Place::Listed},
    {"dmitri",       "Dmitri",         "",                      contact::kMale,   "ru", "ru", "Perm",       contact::kOffline, false, Place::Listed},
    {"emi.k",        "Emi",            "Out for a walk",        contact::kFemale, "ja", "jp", "Kobe",       contact::kOnline,  false, Place::Listed},
    {"farid",        "Farid",          "New television!",       contact::kMale,   "ar", "eg", "Alexandria", contact::kOffline, true,  Place::Listed},
    {"greta",        "Greta",          "",                      contact::kFemale, "sv", "se", "Malm\xc3\xb6", contact::kOffline, false, Place::Listed},
    {"hugo",         "Hugo",           "Gone fishing",          contact::kMale,   "es", "es", "Vigo",       contact::kOnline,  false, Place::Listed},
    {"+15550100",    "Grandma",        "",                      0,                "",   "",   "",           contact::kPhone,   false, Place::Listed},
    {"+35121555000", "Pizza",          "",                      0,                "",   "",   "",           contact::kPhone,   false, Place::Listed},
    {"ines",         "In\xc3\xaas",    "Hello from next door",  contact::kFemale, "pt", "pt", "Lisbon",     contact::kOnline,  true,  Place::Waiting},
    {"jonas",        "Jonas",          "Cheap watches",         contact::kMale,   "en", "gb", "London",     contact::kOnline,  false, Place::Blocked},
};
// clang-format on

}  // namespace simulator
