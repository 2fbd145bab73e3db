#include "apiwrapper/ZEPtrVector.h"

ZEPtrVector::ZEPtrVector(unsigned int slots) {
  if (slots != 0) m_vector = ZEHandle<Block>(new Block(slots));
}

unsigned int ZEPtrVector::size() const noexcept {
  return m_vector.get() == nullptr ? 0 : static_cast<unsigned int>(m_vector.get()->pointers.size());
}

void*& ZEPtrVector::operator[](unsigned int index) const noexcept {
  if (index < size()) return m_vector.get()->pointers[index];
  // One for each thread, so that two of them never meet in it; emptied, so that no stray pointer is read.
  static thread_local void* spare;
  spare = nullptr;
  return spare;
}
