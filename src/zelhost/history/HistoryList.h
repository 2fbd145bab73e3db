#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "zelhost/history/HistoryInfo.h"

// Entries of the history in the order in which the widget shows them. An object of the runtime is in it at
// most once.
// Ten thousand entries are normal: positions are reached directly, times by halving, objects by an index.
// Threads: none of its own; the history manager's callers hold the service-host mutex.
class HistoryList {
 public:
  int Count() const { return static_cast<int>(m_items.size()); }
  // Null for positions outside the list.
  CHistoryInfo* At(int position) const;
  // The first entry whose time has that text; -1 when there is none.
  int PositionOf(const char* time) const;
  // -1 when the object is in no entry.
  int PositionOf(const ZEObject* object) const;
  bool Holds(const ZEObject* object) const { return m_objects.count(object) != 0; }

  void Reserve(std::size_t entries);
  // Puts an entry behind or before all others until Sort() is called. False, and the entry is dropped, when
  // its object is in the list already.
  bool Append(std::unique_ptr<CHistoryInfo> entry);
  bool InsertFront(std::unique_ptr<CHistoryInfo> entry);
  // The position is in the list.
  void Erase(int position);
  // Brings everything in order; entries that compare equal stay as they stand.
  void Sort();
  void Clear();

  // The object is going: the entry that holds it stays, without it.
  void Forget(const ZEObject* object);

 private:
  // The order as one number, so that sorting and searching need not look at the entries.
  struct Item {
    std::uint64_t key;
    std::unique_ptr<CHistoryInfo> entry;
  };

  static std::uint64_t KeyOf(int category, std::int64_t time);
  bool Register(CHistoryInfo* entry);
  // Where the sorted part reaches that key.
  std::size_t FirstFrom(std::uint64_t key) const;

  std::vector<Item> m_items;
  std::size_t m_unsorted = 0;  // so many items at the front stand where they were put
  std::unordered_map<const ZEObject*, CHistoryInfo*> m_objects;
};
