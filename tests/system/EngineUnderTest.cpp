#include "tests/system/SwitchedOnTelevision.h"

// What a television loads.
std::string test::EngineUnderTest() { return Built("libZelto.so"); }
