#include "apiwrapper/ZETokenizer.h"

#include <algorithm>
#include <cstring>

namespace {

// Bit i is set when an odd number of the bits 0..i is.
std::uint64_t PrefixParity(std::uint64_t bits) {
  bits ^= bits << 1;
  bits ^= bits << 2;
  bits ^= bits << 4;
  bits ^= bits << 8;
  bits ^= bits << 16;
  return bits ^ bits << 32;
}

}  // namespace

ZETokenizer::ZETokenizer(std::string_view text, char separator, char escape, Quotes quotes)
    : m_text(text),
      m_separator(separator),
      m_escape(escape),
      m_quotes(quotes == Quotes::Protect && escape != 0) {}

bool ZETokenizer::nextBlock() {
  if (m_text.size() - m_block <= zetext::kBlock) return false;
  m_block += zetext::kBlock;
  readBlock();
  return true;
}

void ZETokenizer::readBlock() {
  const std::size_t size = std::min(m_text.size() - m_block, zetext::kBlock);
  const char* block = m_text.data() + m_block;
  char padded[zetext::kBlock] = {};
  if (size < zetext::kBlock) {
    std::memcpy(padded, block, size);
    block = padded;
  }
  const std::uint64_t valid = size == zetext::kBlock ? kAll : (std::uint64_t{1} << size) - 1;

  const std::uint64_t separators = zetext::EqualMask(block, m_separator) & valid;
  m_separators = separators | ~valid;
  m_ends = separators;
  if (m_escape == 0) return;

  m_escapes = zetext::EqualMask(block, m_escape) & valid;
  m_ends &= ~(m_escapes << 1 | m_lastEscape);
  m_lastEscape = m_escapes >> (zetext::kBlock - 1);
  if (!m_quotes) return;

  const std::uint64_t quotes = zetext::EqualMask(block, '"') & valid & ~escapedBits();
  const std::uint64_t inside = PrefixParity(quotes) ^ m_insideQuotes;
  m_insideQuotes = inside >> (zetext::kBlock - 1) != 0 ? kAll : 0;
  m_ends &= ~inside;
}

// The bytes behind an odd run of escape characters: each escape character that is not escaped itself
// escapes the byte after it.
std::uint64_t ZETokenizer::escapedBits() {
  std::uint64_t escaped = m_nextEscaped ? 1 : 0;
  std::uint64_t left = m_escapes & ~escaped;
  m_nextEscaped = false;
  while (left != 0) {
    const std::uint64_t lowest = left & -left;
    escaped |= lowest << 1;
    m_nextEscaped = lowest >> (zetext::kBlock - 1) != 0;
    left &= ~(lowest | lowest << 1);
  }
  return escaped;
}
