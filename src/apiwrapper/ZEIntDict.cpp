#include "apiwrapper/ZEIntDict.h"

#include <string>

#include "apiwrapper/ZEText.h"

namespace {

std::uint32_t BucketOf(int key) { return static_cast<std::uint32_t>(key) % kDictBuckets; }

}  // namespace

std::uint32_t ZEIntDict::position(int key) const noexcept {
  if (m_dict.get() == nullptr) return Table::kEnd;
  const Table& table = m_dict.get()->table;
  std::uint32_t i = table.first(BucketOf(key));
  while (i != Table::kEnd && table.at(i).key != key) i = table.next(i);
  return i;
}

void ZEIntDict::insert(int key, const ZEString& value, bool onlyIfPresent) {
  const std::uint32_t present = position(key);
  if (present != Table::kEnd) {
    m_dict.own().table.at(present).value = value;
  } else if (!onlyIfPresent) {
    Element& added = m_dict.own().table.append(BucketOf(key));
    added.key = key;
    added.value = value;
  }
}

ZEString ZEIntDict::find(int key) const {
  const std::uint32_t present = position(key);
  return present == Table::kEnd ? ZEString() : m_dict.get()->table.at(present).value;
}

unsigned int ZEIntDict::size() const noexcept {
  return m_dict.get() == nullptr ? 0 : m_dict.get()->table.size();
}

ZEString ZEIntDict::operator[](unsigned int index) const {
  return index < size() ? m_dict.get()->table.inOrder(index).value : ZEString();
}

int ZEIntDict::keyAt(unsigned int index) const {
  if (m_dict.get() == nullptr) return -1;
  return index < size() ? m_dict.get()->table.inOrder(index).key : 0;
}

ZEString ZEIntDict::format() const {
  if (isEmpty()) return {};
  const Table& table = m_dict.get()->table;
  std::size_t length = 0;
  table.forEach([&](const Element& e) {
    length += std::to_string(e.key).size() + e.value.length() + zetext::kPairFrame;
  });
  return ZEString::build(length, [&](char* out) {
    table.forEach([&](const Element& e) {
      out = zetext::WritePair(out, std::to_string(e.key),
                              [&](char* at) { return zetext::Copy(at, e.value.view()); });
    });
    return out - 1;  // without the last pair's blank
  });
}
