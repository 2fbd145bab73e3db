#include "simulator/common/Frames.h"

#include <cstring>

namespace simulator {
namespace {

std::uint32_t ReadLength(const char* header) {
  std::uint32_t length = 0;
  for (std::size_t i = 0; i < kFrameHeader; ++i) {
    length = length << 8 | static_cast<unsigned char>(header[i]);
  }
  return length;
}

}  // namespace

void AppendFrame(std::string& out, std::string_view text) {
  const auto length = static_cast<std::uint32_t>(text.size());
  const char header[kFrameHeader] = {static_cast<char>(length >> 24), static_cast<char>(length >> 16),
                                     static_cast<char>(length >> 8), static_cast<char>(length)};
  out.append(header, kFrameHeader).append(text);
}

char* FrameReader::Room() {
  Reserve(kReadChunk);
  return m_buffer.data() + m_end;
}

void FrameReader::Append(std::string_view bytes) {
  if (bytes.empty()) return;
  Reserve(bytes.size());
  std::memcpy(m_buffer.data() + m_end, bytes.data(), bytes.size());
  m_end += bytes.size();
}

void FrameReader::Reserve(std::size_t size) {
  if (m_begin == m_end) {
    m_begin = m_end = 0;
  } else if (m_begin > 0 && m_buffer.size() - m_end < size) {
    std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
  }
  if (m_buffer.size() - m_end < size) m_buffer.resize(m_end + size);
}

bool FrameReader::Next(std::string_view& text) {
  if (m_broken || Pending() < kFrameHeader) return false;
  const std::uint32_t length = ReadLength(m_buffer.data() + m_begin);
  if (length > kMaxFrameText) {
    m_broken = true;
    return false;
  }
  if (Pending() - kFrameHeader < length) return false;
  text = std::string_view(m_buffer.data() + m_begin + kFrameHeader, length);
  m_begin += kFrameHeader + length;
  return true;
}

}  // namespace simulator
