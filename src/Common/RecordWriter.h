// The one writer of texts with fields: each field is followed by the two bytes 0x03 0x02, records follow
// one another directly.
#pragma once

#include <string>
#include <string_view>

namespace zelto {

inline constexpr std::string_view kFieldSeparator = "\x03\x02";

// Appends to a text that the caller owns. Threads: none of its own.
class RecordWriter {
 public:
  explicit RecordWriter(std::string& text) : m_text(text) {}

  // Appends a field and its separator. A separator inside the value becomes two blanks, so that foreign
  // text cannot forge fields.
  RecordWriter& Field(std::string_view value);
  RecordWriter& Field(int value);

 private:
  std::string& m_text;
};

// The value as it may stand in a record: each separator inside it replaced by two blanks. For the few
// texts whose last field carries no separator behind it.
std::string FieldText(std::string_view value);

}  // namespace zelto
