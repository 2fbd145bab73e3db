// The one pointer that every value type holds: a counted block shared by copies, or no block (null).
#pragma once

#include <cstdint>
#include <utility>

// First part of every block. A copied block starts with a count of its own.
struct ZECounted {
  ZECounted() = default;
  ZECounted(const ZECounted&) noexcept {}
  ZECounted& operator=(const ZECounted&) = delete;

  std::uint32_t references = 1;
};

// Threads: none; the count is a plain integer, so that a copy costs one increment.
template <class Block>
class ZEHandle {
 public:
  ZEHandle() noexcept = default;
  // Takes over the block's first reference.
  explicit ZEHandle(Block* block) noexcept : m_block(block) {}
  ZEHandle(const ZEHandle& other) noexcept : m_block(other.m_block) {
    if (m_block != nullptr) ++m_block->references;
  }
  ZEHandle(ZEHandle&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}
  ZEHandle& operator=(const ZEHandle& other) noexcept {
    ZEHandle(other).swap(*this);
    return *this;
  }
  ZEHandle& operator=(ZEHandle&& other) noexcept {
    ZEHandle(std::move(other)).swap(*this);
    return *this;
  }
  ~ZEHandle() {
    if (m_block != nullptr && --m_block->references == 0) delete m_block;
  }

  void swap(ZEHandle& other) noexcept { std::swap(m_block, other.m_block); }
  void reset() noexcept { ZEHandle().swap(*this); }

  // Null for the null value.
  Block* get() const noexcept { return m_block; }
  bool isShared() const noexcept { return m_block != nullptr && m_block->references != 1; }

  // The block for a change: made when there is none, copied first when others share it.
  Block& own() {
    if (m_block == nullptr) {
      m_block = new Block;
    } else if (isShared()) {
      ZEHandle(new Block(*m_block)).swap(*this);
    }
    return *m_block;
  }

 private:
  Block* m_block = nullptr;
};
