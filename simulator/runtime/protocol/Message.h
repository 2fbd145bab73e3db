// The texts inside the frames: requests as they come in, pairs as they go out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

// A key and its value as they stand on the wire, without the quotes.
struct Pair {
  std::string_view key;
  std::string_view raw;
  bool binary = false;  // marked as binary: key=r"..."
};

// Undoes the escaping of a text: each backslash goes, the character behind it stays.
std::string Unescape(std::string_view raw);
// Undoes the escaping of binary data: backslash and "0" are the byte 0.
std::string UnescapeBinary(std::string_view raw);
// Binary data in the form in which it travels and is kept.
std::string EscapeBinary(std::string_view bytes);
// Cuts a list at the commas that no backslash protects; empty pieces count. The pieces stay escaped.
std::vector<std::string_view> SplitList(std::string_view raw);
// Decimal numbers; 0 where there are no digits, the nearest bound where there are too many.
int ToInt(std::string_view text);
unsigned ToUnsigned(std::string_view text);

// Reads blank-separated key="value" pairs. False on anything else; the pairs before it are there.
bool ParsePairs(std::string_view text, std::vector<Pair>& pairs);

// A request cut into its parts, which point into the frame: valid as long as that is.
// Threads: none of its own.
class Request {
 public:
  // False when the text is no request. The id is set even then, if there is one to answer to.
  bool Parse(std::string_view text);

  // "#1F " with its blank; empty for a one-way request.
  std::string_view Id() const { return m_id; }
  bool NeedsReply() const { return !m_id.empty(); }
  std::string_view ClassToken() const { return m_class; }
  std::string_view MethodToken() const { return m_method; }
  const std::vector<Pair>& Pairs() const { return m_pairs; }
  // The first pair with that key, null for none.
  const Pair* Find(std::string_view key) const;

 private:
  std::string_view m_id;
  std::string_view m_class;
  std::string_view m_method;
  std::vector<Pair> m_pairs;
};

// Appends pairs to a text that the caller owns, a blank between them.
// Threads: none of its own.
class PairWriter {
 public:
  // The text already ends with a blank.
  explicit PairWriter(std::string& text) : m_text(&text) {}

  void Text(std::string_view key, std::string_view value);    // escaped here
  void Binary(std::string_view key, std::string_view value);  // is escaped already
  void Number(std::string_view key, long long value);

 private:
  void Open(std::string_view key, bool binary);

  std::string* m_text;
  bool m_first = true;
};

}  // namespace simulator
