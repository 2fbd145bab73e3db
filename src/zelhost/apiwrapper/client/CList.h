#pragma once

#include <algorithm>
#include <vector>

template <class T>
class CList;

// An ordered list that owns its elements: removing one deletes it.
// Elements unlink themselves with Forget() when somebody else deletes them, so that no list keeps a
// dangling pointer; an element is always unlinked before it is deleted.
// Threads: the caller holds the service-host mutex.
template <class T>
class CList<T*> {
 public:
  CList() = default;
  CList(const CList&) = delete;
  CList& operator=(const CList&) = delete;
  ~CList() { Clear(); }

  int Count() const { return static_cast<int>(m_elements.size()); }
  // Null for positions outside the list.
  T* At(int index) const {
    return index >= 0 && index < Count() ? m_elements[static_cast<std::size_t>(index)] : nullptr;
  }
  // -1 when it is not in the list.
  int IndexOf(const T* element) const {
    const auto found = std::find(m_elements.begin(), m_elements.end(), element);
    return found == m_elements.end() ? -1 : static_cast<int>(found - m_elements.begin());
  }
  bool Contains(const T* element) const { return IndexOf(element) >= 0; }

  void Append(T* element) { m_elements.push_back(element); }
  // Unlinks and deletes; false when it is not in the list, and nothing is deleted then.
  bool Remove(T* element) {
    if (!Forget(element)) return false;
    delete element;
    return true;
  }
  // Unlinks without deleting; false when it is not in the list.
  bool Forget(const T* element) {
    const auto found = std::find(m_elements.begin(), m_elements.end(), element);
    if (found == m_elements.end()) return false;
    m_elements.erase(found);
    return true;
  }
  // Deletes every element.
  void Clear() {
    while (!m_elements.empty()) Remove(m_elements.front());
  }

 private:
  std::vector<T*> m_elements;
};
