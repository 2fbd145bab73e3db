#include "apiwrapper/ZEStringList.h"

#include "apiwrapper/ZEText.h"
#include "apiwrapper/ZETokenizer.h"

void ZEStringList::append(const ZEString& text) {
  if (!text.isNull()) m_list.own().append(text);
}

ZEString ZEStringList::peek() {
  if (isEmpty()) return {};
  ZEString first = m_list.own().takeFirst();
  if (isEmpty()) m_list.reset();
  return first;
}

unsigned int ZEStringList::size() const noexcept {
  return m_list.get() == nullptr ? 0 : static_cast<unsigned int>(m_list.get()->size());
}

ZEString ZEStringList::operator[](unsigned int index) const {
  return index < size() ? (*m_list.get())[index] : ZEString();
}

ZEString ZEStringList::join(const ZEString& separator, bool escape) const {
  if (isEmpty()) return {};
  const ZEListBlock<ZEString>& items = *m_list.get();
  std::size_t length = (items.size() - 1) * separator.length();
  for (const ZEString& item : items) {
    length += escape ? zetext::EscapedSize(item.view()) : item.length();
  }
  return ZEString::build(length, [&](char* out) {
    std::string_view between;
    for (const ZEString& item : items) {
      out = zetext::Copy(out, between);
      out = escape ? zetext::Escape(out, item.view()) : zetext::Copy(out, item.view());
      between = separator.view();
    }
    return out;
  });
}

ZEStringList ZEStringList::split(const ZEString& text, char separator, char escape) {
  ZEStringList tokens;
  if (escape != 0 && text.startWith("\"\"")) return tokens;
  ZETokenizer tokenizer(text.view(), separator, escape, ZETokenizer::Quotes::Protect);
  tokenizer.forEach([&](std::string_view token, bool) { tokens.append(ZEString(token)); });
  return tokens;
}
