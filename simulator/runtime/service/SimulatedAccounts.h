// The accounts that the simulated service starts with, and those that make something happen.
#pragma once

#include "simulator/runtime/service/Service.h"

namespace simulator {

struct DemoAccount {
  const char* name;
  const char* password;
  const char* fullName;
  const char* city;
  const char* mood;
  Trait trait;
};

inline constexpr char kDemoPassword[] = "demo1234";

// clang-format off
inline constexpr DemoAccount kDemoAccounts[] = {
    {"demo",        kDemoPassword, "Demo Person",  "Lisbon", "Trying it out", Trait::None},
    {"maria",       "maria1234",   "Maria Sample", "Porto",  "On the sofa",   Trait::None},
    {"elsewhere",   kDemoPassword, "Elsewhere",    "",       "",              Trait::Elsewhere},
    {"unreachable", kDemoPassword, "Unreachable",  "",       "",              Trait::Unreachable},
    {"toomany",     kDemoPassword, "Too Many",     "",       "",              Trait::TooMany},
    {"damaged",     kDemoPassword, "Damaged",      "",       "",              Trait::Damaged},
    {"nocommit",    kDemoPassword, "No Commit",    "",       "",              Trait::FailsCommit},
    {"nosync",      kDemoPassword, "No Sync",      "",       "",              Trait::FailsSync},
    {"slow.going",  kDemoPassword, "Slow Going",   "",       "",              Trait::Slow},
};
// clang-format on

struct DemoCapability {
  int capability;  // of CONTACT_CAPABILITY_MAP
  int days;        // from the account's beginning to its end, 0 for no end
};

// clang-format off
// What every account may do; others it may not.
inline constexpr DemoCapability kDemoCapabilities[] = {
    {1, 0},    // calls
    {2, 365},  // calls to telephones
    {3, 20},   // a telephone number of its own, running out
    {5, 5},    // voicemail, about to run out
};
// clang-format on

}  // namespace simulator
