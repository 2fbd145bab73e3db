#pragma once

#include <string>

namespace television {

// Sends one order (a line of JSON) through the runtime's test door and answers its line. Throws
// std::runtime_error when the door is not there or does not answer within a few seconds.
std::string OrderThroughDoor(const std::string& door, const std::string& order);

}  // namespace television
