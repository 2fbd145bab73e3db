// The steps of the tours.
#include "tests/faults/Tour.h"

namespace test {

// clang-format off
const std::vector<TourStep> kSignInTour = {
    {"GetZeltoState",       {},                                        "1",                 0},
    {"SetMicVolume",        {"33"},                                    "1",                 0},
    {"GetMicVolume",        {},                                        "33",                0},
    {"SaveDBPan",           {"a \\ \"quoted\", text"},                 "1",                 0},
    {"GetDBPan",            {},                                        "a \\ \"quoted\", text", 0},
    {"IsValidEmail",        {"viewer@example.org"},                    "1",                 0},
    {"ValidatePasswd",      {kDemoName, "walrus77"},                   "1",                 0},
    {"Login",               {kDemoName, kDemoPassword, "1"},           "1",                 kLoggedIn},
    {"GetLoginState",       {},                                        nullptr,             kContactListInSync},
    {"GetAccountInfo",      {"1"},                                     kDemoName,           0},
    {"SetProp",             {"16", "under way"},                       "1",                 0},
    {"SetCallForwardNumbers", {"+3581234"},                            "1",                 kCommitted},
    {"SetCallForwardTimer", {"45"},                                    "1",                 0},
    {"GetCallForwardTimer", {},                                        "45",                0},
    {"SetAvailability",     {"5"},                                     "1",                 0},
    {"Logout",              {"1"},                                     "1",                 kLoggedOut},
};
// clang-format on

}  // namespace test
