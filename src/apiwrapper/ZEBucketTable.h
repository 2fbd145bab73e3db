// The table behind the two dictionaries: 17 chains whose order is the order on the wire.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

constexpr std::uint32_t kDictBuckets = 17;

// An Element has a member `std::uint32_t next`, which the table keeps. Elements are never removed.
template <class Element>
class ZEBucketTable {
 public:
  static constexpr std::uint32_t kEnd = 0xFFFFFFFFU;

  ZEBucketTable() {
    m_first.fill(kEnd);
    m_last.fill(kEnd);
  }

  std::uint32_t size() const noexcept { return static_cast<std::uint32_t>(m_elements.size()); }
  void reserve(std::size_t count) { m_elements.reserve(count); }

  // The bucket's chain: kEnd after its last element.
  std::uint32_t first(std::uint32_t bucket) const noexcept { return m_first[bucket]; }
  std::uint32_t next(std::uint32_t element) const noexcept { return m_elements[element].next; }
  Element& at(std::uint32_t element) noexcept { return m_elements[element]; }
  const Element& at(std::uint32_t element) const noexcept { return m_elements[element]; }

  // Adds an element, made without arguments, at the end of the bucket's chain.
  Element& append(std::uint32_t bucket) {
    const std::uint32_t added = size();
    Element& element = m_elements.emplace_back();
    element.next = kEnd;
    (m_first[bucket] == kEnd ? m_first[bucket] : m_elements[m_last[bucket]].next) = added;
    m_last[bucket] = added;
    return element;
  }

  // Calls visit(const Element&) for each element: bucket after bucket, each from first to last.
  template <class Visit>
  void forEach(Visit&& visit) const {
    for (const std::uint32_t head : m_first) {
      for (std::uint32_t i = head; i != kEnd; i = m_elements[i].next) visit(m_elements[i]);
    }
  }

  // The element that forEach visits at this position, which is below size().
  const Element& inOrder(std::uint32_t position) const {
    if (m_order.size() != m_elements.size()) {
      m_order.clear();
      m_order.reserve(m_elements.size());
      for (const std::uint32_t head : m_first) {
        for (std::uint32_t i = head; i != kEnd; i = m_elements[i].next) m_order.push_back(i);
      }
    }
    return m_elements[m_order[position]];
  }

 private:
  std::array<std::uint32_t, kDictBuckets> m_first;
  std::array<std::uint32_t, kDictBuckets> m_last;
  std::vector<Element> m_elements;
  mutable std::vector<std::uint32_t> m_order;
};
