// Cuts a text into the tokens between runs of separators, 64 bytes at a time. Linear in the text's length
// whatever stands in it.
#pragma once

#include <cstdint>
#include <string_view>

#include "apiwrapper/ZEText.h"

// Without an escape character (0) every separator ends a token. With one, a separator right behind it does
// not; with quotes, one inside double quotes does not either, a quote behind an odd run of escape characters
// being none. The text must stay until the last token is taken; bytes of tokens already taken may change.
// Threads: none.
class ZETokenizer {
 public:
  enum class Quotes { Protect, Ignore };

  ZETokenizer(std::string_view text, char separator, char escape, Quotes quotes);

  // Calls take(token, escapes) for each token in order; escapes: an escape character stands in it.
  template <class Take>
  void forEach(Take&& take);

 private:
  static constexpr std::uint64_t kAll = ~std::uint64_t{0};

  // Reads the block after the current one; false when there is none.
  bool nextBlock();
  void readBlock();
  std::uint64_t escapedBits();

  std::string_view m_text;
  char m_separator;
  char m_escape;
  bool m_quotes;

  // The current block, one bit a byte.
  std::size_t m_block = 0;         // its place in the text
  std::uint64_t m_separators = 0;  // separators, and all bits behind the text
  std::uint64_t m_ends = 0;        // separators that end a token
  std::uint64_t m_escapes = 0;     // escape characters

  // What a block leaves to the next one.
  bool m_nextEscaped = false;        // an odd run of escape characters reaches its end
  std::uint64_t m_lastEscape = 0;    // its last character is an escape character: bit 0
  std::uint64_t m_insideQuotes = 0;  // it ends inside quotes: all bits
};

template <class Take>
void ZETokenizer::forEach(Take&& take) {
  if (m_text.empty()) return;
  readBlock();
  std::uint64_t ahead = kAll;  // the bits of the block that are still to be looked at
  for (;;) {
    while ((~m_separators & ahead) == 0) {
      if (!nextBlock()) return;
      ahead = kAll;
    }
    const unsigned int first = zetext::LowestBit(~m_separators & ahead);
    const char* const start = m_text.data() + m_block + first;

    std::uint64_t escapes = 0;
    ahead = kAll << first;
    while ((m_ends & ahead) == 0) {
      escapes |= m_escapes & ahead;
      if (!nextBlock()) {
        const char* const end = m_text.data() + m_text.size();
        return take(std::string_view(start, static_cast<std::size_t>(end - start)), escapes != 0);
      }
      ahead = kAll;
    }
    const std::uint64_t ends = m_ends & ahead;
    const char* const end = m_text.data() + m_block + zetext::LowestBit(ends);
    const std::uint64_t upToEnd = ends ^ (ends - 1);
    escapes |= m_escapes & ahead & upToEnd;
    ahead = ~upToEnd;
    take(std::string_view(start, static_cast<std::size_t>(end - start)), escapes != 0);
  }
}
