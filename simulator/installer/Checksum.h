// The CRC-32 that a package must have.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace installer {

// Beside the package NAME lies NAME.crc32 with eight hexadecimal digits; anything behind them is a comment.
// Empty when there is no such file, or something else is in it.
std::optional<std::uint32_t> ExpectedChecksum(const std::string& package);

// Of a file's bytes. Empty when it can't be read.
std::optional<std::uint32_t> Checksum(const std::string& file);

}  // namespace installer
