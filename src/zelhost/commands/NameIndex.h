// A perfect hash over a fixed set of names, built by the compiler.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zelhost {

// Finds a name's position in the set that it was built from. The key of a name is its length and its
// first and last eight bytes; a first hash chooses a bucket, whose multiplier then spreads the bucket's
// names over slots of their own. Names have at least four bytes.
template <std::size_t Count>
class NameIndex {
 public:
  static constexpr std::size_t kNone = 0xFF;

  // `names` must be distinct in their keys, else the index cannot be built and IsComplete is false.
  constexpr explicit NameIndex(const std::array<std::string_view, Count>& names) {
    std::array<std::uint64_t, Count> hashes{};
    for (std::size_t i = 0; i < Count; ++i) hashes[i] = Hash(names[i].data(), names[i].size());
    for (auto& slot : m_slots) slot = kNone;
    m_complete = PlaceBuckets(hashes);
  }

  constexpr bool IsComplete() const { return m_complete; }

  // The position of the only name that may be the given one; the caller compares. kNone: there is none.
  constexpr std::size_t Find(const char* text, std::size_t length) const {
    if (length < kShortest) return kNone;
    const std::uint64_t hash = Hash(text, length);
    return m_slots[Slot(hash, m_multipliers[Bucket(hash)])];
  }

 private:
  static constexpr std::size_t kShortest = 4;
  static constexpr std::size_t kBuckets = 128;
  static constexpr unsigned kSlotBits = 9;
  static constexpr std::size_t kSlots = std::size_t{1} << kSlotBits;
  static_assert(Count < kNone && Count * 2 <= kSlots, "the slots hold positions of one byte, half filled");

  static constexpr std::uint64_t Byte(const char* text, unsigned shift) {
    return static_cast<std::uint64_t>(static_cast<unsigned char>(*text)) << shift;
  }
  static constexpr std::uint64_t Load4(const char* text) {
    return Byte(text, 0) | Byte(text + 1, 8) | Byte(text + 2, 16) | Byte(text + 3, 24);
  }
  static constexpr std::uint64_t Load8(const char* text) { return Load4(text) | Load4(text + 4) << 32; }

  static constexpr std::uint64_t Hash(const char* text, std::size_t length) {
    const bool isLong = length >= 8;
    const std::uint64_t first = isLong ? Load8(text) : Load4(text);
    const std::uint64_t last = isLong ? Load8(text + length - 8) : Load4(text + length - 4);
    const std::uint64_t mixed = first * 0x9E3779B97F4A7C15U ^ (last + length) * 0xC2B2AE3D27D4EB4FU;
    return mixed ^ mixed >> 32;
  }
  static constexpr std::size_t Bucket(std::uint64_t hash) { return hash % kBuckets; }
  static constexpr std::size_t Slot(std::uint64_t hash, std::uint32_t multiplier) {
    return static_cast<std::uint32_t>(hash) * multiplier >> (32 - kSlotBits);
  }

  // The fullest buckets first, while there is most room.
  constexpr bool PlaceBuckets(const std::array<std::uint64_t, Count>& hashes) {
    std::array<std::size_t, kBuckets> sizes{};
    for (const auto hash : hashes) ++sizes[Bucket(hash)];
    for (std::size_t size = Count; size > 0; --size) {
      for (std::size_t bucket = 0; bucket < kBuckets; ++bucket) {
        if (sizes[bucket] == size && !PlaceBucket(hashes, bucket)) return false;
      }
    }
    return true;
  }

  constexpr bool PlaceBucket(const std::array<std::uint64_t, Count>& hashes, std::size_t bucket) {
    std::array<std::size_t, Count> members{};
    std::size_t size = 0;
    for (std::size_t i = 0; i < Count; ++i) {
      if (Bucket(hashes[i]) == bucket) members[size++] = i;
    }
    for (std::uint32_t multiplier = 0x9E3779B1U, tries = 0; tries < 1000;
         ++tries, multiplier += 0x3C6EF372U) {
      std::size_t placed = 0;
      while (placed < size && Take(hashes[members[placed]], multiplier, members[placed])) ++placed;
      if (placed == size) {
        m_multipliers[bucket] = multiplier;
        return true;
      }
      while (placed > 0) m_slots[Slot(hashes[members[--placed]], multiplier)] = kNone;
    }
    return false;
  }

  constexpr bool Take(std::uint64_t hash, std::uint32_t multiplier, std::size_t position) {
    std::uint8_t& slot = m_slots[Slot(hash, multiplier)];
    if (slot != kNone) return false;
    slot = static_cast<std::uint8_t>(position);
    return true;
  }

  std::array<std::uint32_t, kBuckets> m_multipliers{};
  std::array<std::uint8_t, kSlots> m_slots{};
  bool m_complete = false;
};

}  // namespace zelhost
