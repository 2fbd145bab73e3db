// The properties of a contact that the contact list works with, and what its availability means.
#pragma once

#include <cstddef>

#include "apiwrapper/Contact.h"
#include "apiwrapper/ZEIntDict.h"

namespace zelhost {

// The service's own contact, whom everybody may call to hear themselves.
inline constexpr char kSoundTestName[] = "sndtest";

// What is fetched for every contact, in the order of the request.
inline constexpr int kBasicContactProperties[] = {
    Contact::P_IDENTITY, Contact::P_DISPLAY_NAME, Contact::P_AVAILABILITY,
    Contact::P_GENDER,   Contact::P_PHONE_NUMBER, Contact::P_AVATAR,
    Contact::P_33};

// What is fetched when somebody first asks for one of them, in the order of the request.
inline constexpr int kExtraContactProperties[] = {Contact::P_4,
                                                  Contact::P_5,
                                                  Contact::P_LANGUAGE,
                                                  Contact::P_10,
                                                  Contact::P_9,
                                                  Contact::P_COUNTRY,
                                                  Contact::P_36,
                                                  Contact::P_15,
                                                  Contact::P_16,
                                                  Contact::P_11,
                                                  Contact::P_12,
                                                  Contact::P_13,
                                                  Contact::P_ASSIGNED_PHONE1,
                                                  Contact::P_ASSIGNED_PHONE1_LABEL,
                                                  Contact::P_ASSIGNED_PHONE2,
                                                  Contact::P_ASSIGNED_PHONE2_LABEL,
                                                  Contact::P_ASSIGNED_PHONE3,
                                                  Contact::P_ASSIGNED_PHONE3_LABEL};
static_assert(sizeof kExtraContactProperties == 18 * sizeof(int));

// What is fetched for every person that a search has found, and beside it for one whose profile is wanted.
inline constexpr int kSearchedContactProperties[] = {Contact::P_IDENTITY, Contact::P_4, Contact::P_COUNTRY,
                                                     Contact::P_10, Contact::P_LANGUAGE};
inline constexpr int kProfileProperties[] = {Contact::P_33, Contact::P_AVATAR};

// The fields of the records of people found and of a profile.
inline constexpr int kSearchedContactRecord[] = {Contact::P_IDENTITY, Contact::P_4, Contact::P_COUNTRY,
                                                 Contact::P_10};
inline constexpr int kProfileRecord[] = {Contact::P_IDENTITY, Contact::P_4,        Contact::P_COUNTRY,
                                         Contact::P_10,       Contact::P_LANGUAGE, Contact::P_33,
                                         Contact::P_AVATAR};

// The fields of a contact's record, in their order.
inline constexpr int kContactRecord[] = {Contact::P_IDENTITY,
                                         Contact::P_PHONE_NUMBER,
                                         Contact::P_DISPLAY_NAME,
                                         Contact::P_AVAILABILITY,
                                         Contact::P_GENDER,
                                         Contact::P_AVATAR,
                                         Contact::P_33};
inline constexpr std::size_t kContactRecordFields = sizeof kContactRecord / sizeof kContactRecord[0];

// What a contact with those values is called by: its identity or, without one, its phone number.
inline ZEString KeyOf(const ZEIntDict& values) {
  const ZEString identity = values.find(Contact::P_IDENTITY);
  return identity.isEmpty() ? values.find(Contact::P_PHONE_NUMBER) : identity;
}

// What an availability means for the list (a sort category) and for the host (a status).
struct AvailabilityMeaning {
  int availability;
  int category;
  int hostStatus;
};

// clang-format off
inline constexpr AvailabilityMeaning kAvailabilityMeanings[] = {
    { 1, 1, 0},
    { 5, 3, 1},
    { 7, 2, 1},
    { 8, 2, 3},
    {10, 2, 4},
    {11, 2, 1},
    {14, 2, 1},
    {15, 2, 3},
    {17, 2, 4},
};
// clang-format on
// Every other availability.
inline constexpr AvailabilityMeaning kAwayMeaning = {0, 4, 2};

constexpr AvailabilityMeaning MeaningOf(int availability) {
  for (const AvailabilityMeaning& meaning : kAvailabilityMeanings) {
    if (meaning.availability == availability) return meaning;
  }
  return kAwayMeaning;
}

}  // namespace zelhost
