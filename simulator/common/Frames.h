// The stream's framing: a length of four bytes, most significant first, then that many bytes of text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

inline constexpr std::size_t kFrameHeader = 4;
// The largest text of a frame. A longer length can only come from a stream that has lost its step.
inline constexpr std::size_t kMaxFrameText = 0x00FFFFFF;
// Read in one go: many requests, and so much that one ordinary request never needs a second call.
inline constexpr std::size_t kReadChunk = 64 * 1024;

// Appends a frame with this text, which must not be longer than kMaxFrameText.
void AppendFrame(std::string& out, std::string_view text);

// Cuts a stream into frames. The bytes stay where they were read to.
// Threads: none of its own.
class FrameReader {
 public:
  // Room for at least kReadChunk further bytes; valid until the next call of any operation.
  char* Room();
  std::size_t RoomSize() const { return m_buffer.size() - m_end; }
  // Says how many bytes were put there.
  void Filled(std::size_t size) { m_end += size; }
  // Copies bytes in, for those who do not read from a descriptor.
  void Append(std::string_view bytes);

  // The next whole frame's text, valid until the next call of Room() or Append(). False when there is none
  // yet, or when the stream is broken.
  bool Next(std::string_view& text);
  // A length above kMaxFrameText was met; nothing further comes out.
  bool Broken() const { return m_broken; }
  // Bytes of a frame that has not arrived whole.
  std::size_t Pending() const { return m_end - m_begin; }

 private:
  void Reserve(std::size_t size);

  std::vector<char> m_buffer;
  std::size_t m_begin = 0;
  std::size_t m_end = 0;
  bool m_broken = false;
};

}  // namespace simulator
