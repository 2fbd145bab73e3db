// What the service answers when something does not work.
#pragma once

namespace installer {

struct Error {
  int code;  // two digits
  const char* text;
};

constexpr int kLargestCode = 99;

// clang-format off
inline constexpr Error kUnknownRequest  = {10, "unknown request"};
inline constexpr Error kBadArgument     = {11, "bad argument"};
inline constexpr Error kUnknownVariable = {12, "unknown variable"};
inline constexpr Error kTooLong         = {13, "request too long"};
inline constexpr Error kBusy            = {20, "busy"};
inline constexpr Error kNoConnection    = {21, "no connection"};
inline constexpr Error kNoFile          = {22, "no such file"};
inline constexpr Error kUnreadable      = {23, "the file can't be read to its end"};
inline constexpr Error kTooLarge        = {24, "the file is too large"};
inline constexpr Error kUnwritable      = {25, "can't write"};
inline constexpr Error kNothingHere     = {30, "nothing has been downloaded"};
inline constexpr Error kNoChecksum      = {31, "the file came without a checksum"};
inline constexpr Error kWrongChecksum   = {32, "wrong checksum"};
inline constexpr Error kNotChecked      = {33, "the file has not been checked"};
inline constexpr Error kAsAsked         = {90, "failed as it was asked to"};
// clang-format on

}  // namespace installer
