// The properties whose changes nobody in the engine wants to hear of; the runtime is asked once, after the
// start, not to report them.
#pragma once

#include "apiwrapper/Zelto.h"

namespace zelhost {

struct FilteredRange {
  Zelto::OBJECTTYPE type;
  int first;
  int last;
};

// Rows of one type stand together, in the order in which the runtime is told.
// clang-format off
inline constexpr FilteredRange kFilteredProperties[] = {
    {Zelto::TYPE_ACCOUNT,      13, 14},
    {Zelto::TYPE_ACCOUNT,      18, 18},
    {Zelto::TYPE_ACCOUNT,      28, 29},
    {Zelto::TYPE_ACCOUNT,      31, 34},
    {Zelto::TYPE_ACCOUNT,      38, 43},
    {Zelto::TYPE_CONTACT,       1, 19},
    {Zelto::TYPE_CONTACT,      22, 22},
    {Zelto::TYPE_CONTACT,      24, 28},
    {Zelto::TYPE_CONTACT,      30, 31},
    {Zelto::TYPE_CONTACT,      34, 47},
    {Zelto::TYPE_CONTACTGROUP,  6,  6},
};
// clang-format on

}  // namespace zelhost
