// A vector of object pointers whose size is fixed when it is made.
#pragma once

#include <vector>

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEHandle.h"

// Owns nothing that its slots point to. Copies share the slots. Threads: none; see ZEString.
class ZELTO_EXPORT ZEPtrVector {
 public:
  ZEPtrVector() noexcept = default;
  // That many null pointers for the creator to fill; 0 gives the null vector.
  explicit ZEPtrVector(unsigned int slots);

  unsigned int size() const noexcept;
  // The slot; for an index not below size() a spare one that belongs to no vector and holds null.
  void*& operator[](unsigned int index) const noexcept;

 private:
  struct Block : ZECounted {
    explicit Block(unsigned int slots) : pointers(slots, nullptr) {}
    std::vector<void*> pointers;
  };
  ZEHandle<Block> m_vector;
};
