// The block behind the two list types: a queue in one array, so that indexing needs no walk.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "apiwrapper/ZEHandle.h"

template <class Item>
class ZEListBlock : public ZECounted {
 public:
  std::size_t size() const noexcept { return m_items.size() - m_first; }
  // The index is below size().
  const Item& operator[](std::size_t index) const { return m_items[m_first + index]; }

  auto begin() const noexcept { return m_items.begin() + static_cast<std::ptrdiff_t>(m_first); }
  auto end() const noexcept { return m_items.end(); }

  void append(Item item) {
    // Places of removed items are taken back before the array grows: a queue that never runs empty stays
    // small, and each item moves at most once per removed one.
    if (m_items.size() == m_items.capacity() && m_first > m_items.size() / 2) {
      m_items.erase(m_items.begin(), m_items.begin() + static_cast<std::ptrdiff_t>(m_first));
      m_first = 0;
    }
    m_items.push_back(std::move(item));
  }

  // The list is not empty.
  Item takeFirst() { return std::exchange(m_items[m_first++], Item()); }

 private:
  std::vector<Item> m_items;
  std::size_t m_first = 0;
};
