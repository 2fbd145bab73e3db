#include "Common/RecordWriter.h"

#include <charconv>

namespace zelto {

RecordWriter& RecordWriter::Field(std::string_view value) {
  std::size_t from = 0;
  for (std::size_t at; (at = value.find(kFieldSeparator, from)) != std::string_view::npos;
       from = at + kFieldSeparator.size()) {
    m_text.append(value, from, at - from).append("  ");
  }
  m_text.append(value, from).append(kFieldSeparator);
  return *this;
}

RecordWriter& RecordWriter::Field(int value) {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return Field(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

std::string FieldText(std::string_view value) {
  std::string text;
  RecordWriter(text).Field(value);
  text.resize(text.size() - kFieldSeparator.size());
  return text;
}

}  // namespace zelto
