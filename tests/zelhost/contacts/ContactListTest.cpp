#include "zelhost/contacts/ContactList.h"

#include <gtest/gtest.h>
#include <strings.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

// What the list should hold, as the simplest thing that can be right.
struct Row {
  const CContactInfo* entry;
  int category;
  std::string name;
  std::string identity;
  std::string phone;
};

class AListUnderRandomChanges : public testing::Test {
 protected:
  int Number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
  // Few enough that thousands share one, some longer than what the list compares at once.
  std::string Name() {
    static constexpr const char* kNames[] = {
        "",     "ann", "Ann", "ANNA", "a name of many letters", "A Name Of Many LETTERS, and more",
        "\xFF", "Zoe"};
    return kNames[Number(8)] + (Number(2) == 0 ? std::string() : std::to_string(Number(500)));
  }
  std::unique_ptr<CContactInfo> Make() {
    Row row{nullptr, 1 + Number(4), Name(), "id" + std::to_string(Number(4000)), ""};
    if (Number(4) == 0) row.phone = "+" + std::to_string(Number(3000));
    auto entry = std::make_unique<CContactInfo>();
    entry->Set(Contact::P_IDENTITY, row.identity.c_str());
    entry->Set(Contact::P_PHONE_NUMBER, row.phone.c_str());
    entry->Set(Contact::P_DISPLAY_NAME, row.name.c_str());
    entry->SetCategory(row.category);
    row.entry = entry.get();
    m_rows.push_back(row);
    return entry;
  }
  Row& AnyRow() { return m_rows[static_cast<std::size_t>(Number(static_cast<int>(m_rows.size())))]; }

  void Change() {
    Row& row = AnyRow();
    if (Number(10) == 0) {
      m_list.Remove(row.entry);
      m_rows.erase(m_rows.begin() + (&row - m_rows.data()));
      return;
    }
    const int kind = Number(4);
    if (kind == 0) {
      row.identity = Number(9) == 0 ? "" : "id" + std::to_string(Number(4000));
      return m_list.Set(row.entry, Contact::P_IDENTITY, row.identity.c_str());
    }
    if (kind == 1) m_list.Set(row.entry, Contact::P_DISPLAY_NAME, (row.name = Name()).c_str());
    if (kind > 1) m_list.SetCategory(row.entry, row.category = kind == 2 ? 4 : 1 + Number(4));
    m_list.Place(row.entry);
  }

  // Rows stand in the order in which they came, which is the order among equals.
  void Check() {
    std::vector<Row> wanted = m_rows;
    std::stable_sort(wanted.begin(), wanted.end(), [](const Row& a, const Row& b) {
      if (a.category != b.category) return a.category < b.category;
      return strcasecmp(a.name.c_str(), b.name.c_str()) < 0;
    });
    ASSERT_EQ(m_list.Count(), static_cast<int>(wanted.size()));
    int shown = 0;
    m_list.VisitFrom(0, [&](const CContactInfo* entry, int position) {
      EXPECT_EQ(position, shown);
      EXPECT_EQ(entry, wanted[static_cast<std::size_t>(shown)].entry) << shown;
      return ++shown < m_list.Count() && !HasFailure();
    });
    ASSERT_EQ(shown, m_list.Count());
    for (int category = 0; category < 5; ++category) {
      EXPECT_EQ(m_list.Count(category), std::count_if(wanted.begin(), wanted.end(), [&](const Row& row) {
                  return row.category == category;
                }));
    }
    for (int i = 0; i < 200; ++i) {
      const int position = Number(m_list.Count());
      const Row& row = wanted[static_cast<std::size_t>(position)];
      ASSERT_EQ(m_list.At(position), row.entry);
      ASSERT_EQ(m_list.PositionOf(row.entry), position);
      ASSERT_EQ(m_list.Find(row.phone), FirstOf(wanted, row.phone)) << row.phone;
      const std::string name = "id" + std::to_string(Number(5000));
      ASSERT_EQ(m_list.Find(name), FirstOf(wanted, name)) << name;
    }
  }

  ContactList m_list;
  std::vector<Row> m_rows;

 private:
  static const CContactInfo* FirstOf(const std::vector<Row>& rows, const std::string& name) {
    if (name.empty()) return nullptr;
    const auto found = std::find_if(
        rows.begin(), rows.end(), [&](const Row& row) { return row.identity == name || row.phone == name; });
    return found == rows.end() ? nullptr : found->entry;
  }

  std::mt19937 m_random{7};
};

TEST_F(AListUnderRandomChanges, KeepsOrderCountsAndNames) {
  for (int round = 0; round < 12 && !HasFailure(); ++round) {
    for (int i = 0; i < 300; ++i) m_list.Insert(Make());
    if (round % 3 == 0) {
      for (int i = 0; i < 500; ++i) m_list.Append(Make());
      m_list.Sort();
    }
    for (int i = 0; i < 2000; ++i) Change();
    Check();
  }
  // Whole categories run empty and fill again.
  for (const int category : {4, 2, 3}) {
    for (Row& row : m_rows) {
      m_list.SetCategory(row.entry, row.category = category);
      m_list.Place(row.entry);
    }
    Check();
  }
  for (const int nowhere : {-1, m_list.Count()}) EXPECT_EQ(m_list.At(nowhere), nullptr);
  m_list.Clear();
  EXPECT_EQ(m_list.Count() + m_list.Count(3), 0);
  EXPECT_EQ(m_list.Find("id1"), nullptr);
}

}  // namespace
