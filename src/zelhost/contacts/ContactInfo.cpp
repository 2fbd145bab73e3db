#include "zelhost/contacts/ContactInfo.h"

#include <algorithm>
#include <cstring>

#include "Common/RecordWriter.h"

namespace {

constexpr int kNoField = -1;
constexpr int kHighestField = 64;

// Where a property stands in the record.
constexpr std::array<signed char, kHighestField> MakeFields() {
  std::array<signed char, kHighestField> fields{};
  for (signed char& field : fields) field = kNoField;
  signed char next = 0;
  for (const int property : zelhost::kContactRecord) fields[static_cast<std::size_t>(property)] = next++;
  return fields;
}
constexpr auto kFields = MakeFields();

int FieldOf(int property) {
  return property >= 0 && property < kHighestField ? kFields[static_cast<std::size_t>(property)] : kNoField;
}

// Both answer the place of the property, or where it belongs.
template <class Values>
auto Locate(Values& values, int property) {
  return std::lower_bound(values.begin(), values.end(), property,
                          [](const auto& value, int wanted) { return value.first < wanted; });
}

const ZEString& Empty() {
  static const ZEString empty("");
  return empty;
}

// Blanks of the same length take the place of separators inside the value.
void Clean(char* field, std::size_t length) {
  std::string_view text(field, length);
  for (std::size_t at; (at = text.find(zelto::kFieldSeparator)) != std::string_view::npos;) {
    std::memset(field + at, ' ', zelto::kFieldSeparator.size());
  }
}

}  // namespace

bool CContactInfo::Compare(const CContactInfo* a, const CContactInfo* b) {
  if (a->m_nCategory != b->m_nCategory) return a->m_nCategory < b->m_nCategory;
  return zelhost::CompareNames(a->Get(Contact::P_DISPLAY_NAME).view(),
                               b->Get(Contact::P_DISPLAY_NAME).view()) < 0;
}

const ZEString& CContactInfo::Get(int property) const {
  static const ZEString absent;
  const int field = FieldOf(property);
  if (field != kNoField) return m_record[static_cast<std::size_t>(field)];
  const auto found = Locate(m_others, property);
  return found != m_others.end() && found->first == property ? found->second : absent;
}

const ZEString& CContactInfo::Key() const {
  const ZEString& identity = Get(Contact::P_IDENTITY);
  return identity.isEmpty() ? Get(Contact::P_PHONE_NUMBER) : identity;
}

void CContactInfo::Set(int property, const ZEString& value) {
  const ZEString& stored = value.isNull() ? Empty() : value;
  const int field = FieldOf(property);
  if (field != kNoField) {
    m_record[static_cast<std::size_t>(field)] = stored;
    m_holdsSeparator |= stored.view().find(zelto::kFieldSeparator) != std::string_view::npos;
    return;
  }
  const auto found = Locate(m_others, property);
  if (found != m_others.end() && found->first == property) {
    found->second = stored;
  } else {
    m_others.emplace(found, property, stored);
  }
}

std::size_t CContactInfo::RecordSize() const {
  std::size_t size = m_record.size() * zelto::kFieldSeparator.size();
  for (const ZEString& field : m_record) size += field.length();
  return size;
}

char* CContactInfo::WriteRecord(char* out) const {
  for (const ZEString& field : m_record) {
    const std::size_t length = field.length();
    std::memcpy(out, static_cast<const char*>(field), length);
    if (m_holdsSeparator) Clean(out, length);
    out += length;
    std::memcpy(out, zelto::kFieldSeparator.data(), zelto::kFieldSeparator.size());
    out += zelto::kFieldSeparator.size();
  }
  return out;
}

void WriteContactRecords(const std::vector<const CContactInfo*>& entries, std::string& text) {
  std::size_t size = 0;
  for (const CContactInfo* entry : entries) size += entry->RecordSize();
  text.resize(size);
  char* out = text.data();
  for (const CContactInfo* entry : entries) out = entry->WriteRecord(out);
}
