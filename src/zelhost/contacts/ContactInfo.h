#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "apiwrapper/ZEString.h"
#include "zelhost/contacts/ContactProperties.h"
#include "zelhost/contacts/NameOrder.h"

// One entry of the contact list: the property values that are known of a contact, and its sort category.
// A value that was never stored is absent, which differs from an empty one.
// Threads: none of its own; the contact manager's callers hold the service-host mutex.
class CContactInfo {
 public:
  // The blocks of the list, in their order. No entry is put into the first.
  enum SORT_CATEGORY : int {
    SORT_NONE = 0,
    SORT_WAIT,
    SORT_REACHABLE,
    SORT_PHONE,
    SORT_AWAY,
    SORT_CATEGORIES
  };

  CContactInfo() = default;
  CContactInfo(const CContactInfo&) = delete;
  CContactInfo& operator=(const CContactInfo&) = delete;

  // The category that goes with an availability.
  static int SetSortCategory(int availability) { return zelhost::MeaningOf(availability).category; }
  // Whether a stands before b: by category, then by display name without regard to case.
  static bool Compare(const CContactInfo* a, const CContactInfo* b);

  bool Has(int property) const { return !Get(property).isNull(); }
  // The null string when absent. Valid until the property is stored anew.
  const ZEString& Get(int property) const;
  int Category() const { return m_nCategory; }
  // What the contact is called by: its identity or, without one, its phone number.
  const ZEString& Key() const;

  // Whether that is its identity or phone number.
  bool GoesBy(std::string_view name) const {
    return Get(Contact::P_IDENTITY).view() == name || Get(Contact::P_PHONE_NUMBER).view() == name;
  }

  // For entries that no list holds yet; a listed one is changed through its list.
  // The null string is stored as the empty text.
  void Set(int property, const ZEString& value);
  void SetCategory(int category) { m_nCategory = category; }

  // Bytes of the contact's record: each field with a separator behind it.
  std::size_t RecordSize() const;
  // Writes that many bytes and answers the place behind them. A separator inside a field becomes two blanks.
  char* WriteRecord(char* out) const;

 private:
  friend class ContactList;

  // Where the entry stands in its list. The text is the name that it was placed by, which outlives a rename
  // until the list moves the entry.
  struct Place {
    zelhost::NameKey key;        // category and the beginning of the name
    std::uint64_t sequence = 0;  // tells entries of the same name apart
    ZEString name;
  };

  std::array<ZEString, zelhost::kContactRecordFields> m_record;  // the record's fields, in its order
  std::vector<std::pair<int, ZEString>> m_others;                // by property
  int m_nCategory = SORT_AWAY;
  bool m_holdsSeparator = false;  // some field of the record may hold what separates fields
  Place m_place;
};

// The entries' records, one behind the other, in place of the text. The text is sized once.
void WriteContactRecords(const std::vector<const CContactInfo*>& entries, std::string& text);
