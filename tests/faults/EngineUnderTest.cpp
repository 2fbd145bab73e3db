#include "tests/system/SwitchedOnTelevision.h"

// The engine is linked into this program, so that its clock can be made to run faster.
std::string test::EngineUnderTest() { return ""; }
