#include "apiwrapper/ZEIntList.h"

#include "apiwrapper/ZETokenizer.h"

void ZEIntList::append(int value) { m_list.own().append(value); }

int ZEIntList::peek() {
  if (isEmpty()) return 0;
  const int first = m_list.own().takeFirst();
  if (isEmpty()) m_list.reset();
  return first;
}

unsigned int ZEIntList::size() const noexcept {
  return m_list.get() == nullptr ? 0 : static_cast<unsigned int>(m_list.get()->size());
}

int ZEIntList::operator[](unsigned int index) const { return index < size() ? (*m_list.get())[index] : 0; }

ZEIntList ZEIntList::split(const ZEString& text, char separator, char escape) {
  ZEIntList values;
  ZETokenizer tokenizer(text.view(), separator, escape, ZETokenizer::Quotes::Ignore);
  tokenizer.forEach([&](std::string_view token, bool) { values.append(ZEString(token).toInt()); });
  return values;
}
