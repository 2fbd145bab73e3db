// Words of the protocol that are neither class, method, property, enumerator nor key.
#pragma once

namespace ZEWord {
// The wire name of a property that an application defined for itself: the prefix, its number in decimal and a
// suffix by the two top bits of its id.
inline constexpr char ExtendedPrefix[] = "1893";
inline constexpr char ExtendedBit31[] = "_1668";
inline constexpr char ExtendedBit30[] = "_1598";
inline constexpr char ExtendedBothBits[] = "_1803";

inline constexpr char SearchOr[] = "1448";  // a search term: either what precedes or what follows

inline constexpr char Request[] = "a";
inline constexpr char Reply[] = "b";
inline constexpr char Error[] = "d";

inline constexpr char WrapperVersion[] = "1.10";
}  // namespace ZEWord
