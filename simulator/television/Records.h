#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace television {

// Ends each field of a record.
inline constexpr std::string_view kFieldSeparator = "\x03\x02";

using Record = std::vector<std::string>;

// The records of a list query of the engine, each of that many fields; an incomplete one at the end is left
// out.
std::vector<Record> ReadRecords(std::string_view text, std::size_t fields);

}  // namespace television
