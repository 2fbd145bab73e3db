// The order of names in lists: byte by byte, without regard to the case of Latin letters, whatever language
// the television is set to.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zelhost {

constexpr unsigned char FoldedByte(char c) {
  return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

// Below, at or above 0, as strcmp does. The first `from` bytes are known to be the same.
inline int CompareNames(std::string_view a, std::string_view b, std::size_t from = 0) {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = from; i < common; ++i) {
    const int difference = FoldedByte(a[i]) - FoldedByte(b[i]);
    if (difference != 0) return difference;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

// The beginning of a name as a number that orders as names do, below a rank that comes first. Equal for names
// that begin alike.
struct NameKey {
  static constexpr std::size_t kBytes = 15;  // of the name

  NameKey() = default;
  NameKey(int rank, std::string_view name) : high(static_cast<unsigned char>(rank)) {
    for (std::size_t i = 0; i < 7; ++i) high = high << 8 | ByteOf(name, i);
    for (std::size_t i = 7; i < kBytes; ++i) low = low << 8 | ByteOf(name, i);
  }
  static std::uint64_t ByteOf(std::string_view name, std::size_t i) {
    return i < name.size() ? FoldedByte(name[i]) : 0;
  }
  bool operator==(const NameKey& other) const { return high == other.high && low == other.low; }
  bool operator<(const NameKey& other) const {
    return high != other.high ? high < other.high : low < other.low;
  }

  std::uint64_t high = 0;
  std::uint64_t low = 0;
};

}  // namespace zelhost
