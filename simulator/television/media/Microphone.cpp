#include "simulator/television/media/Microphone.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace television {

namespace {

constexpr double kToneHertz = 440;
constexpr double kToneAmplitude = 8000;
constexpr double kTurn = 6.283185307179586;
constexpr std::size_t kMostChannels = 64;

}  // namespace

Microphone::Microphone(const std::string& file) : m_file(nullptr, &sf_close) {
  if (file.empty()) return;
  SF_INFO info{};
  m_file.reset(sf_open(file.c_str(), SFM_READ, &info));
  const std::string name = "the microphone's file " + file;
  if (m_file == nullptr) throw std::runtime_error("can't read " + name + ": " + sf_strerror(nullptr));
  if (info.samplerate != kSamplesPerSecond) {
    throw std::runtime_error(name + " has " + std::to_string(info.samplerate) + " samples a second, not " +
                             std::to_string(kSamplesPerSecond));
  }
  m_channels = static_cast<std::size_t>(info.channels);
  if (info.frames <= 0 || m_channels == 0 || m_channels > kMostChannels)
    throw std::runtime_error(name + " holds no sound that can be used");
  // Otherwise files of floating-point numbers, which run from -1 to 1, would be silent.
  sf_command(m_file.get(), SFC_SET_SCALE_FLOAT_INT_READ, nullptr, SF_TRUE);
  m_interleaved.resize(kPacketSamples * m_channels);
}

void Microphone::Rewind() {
  m_position = 0;
  if (m_file != nullptr) sf_seek(m_file.get(), 0, SEEK_SET);
}

Microphone::Packet& Microphone::Next() {
  if (m_file != nullptr) {
    ReadFile();
  } else {
    MakeTone();
  }
  m_position += kPacketSamples;
  return m_packet;
}

void Microphone::ReadFile() {
  std::size_t filled = 0;
  for (bool rewound = false; filled < kPacketSamples;) {
    const sf_count_t read = sf_readf_short(m_file.get(), m_interleaved.data() + filled * m_channels,
                                           static_cast<sf_count_t>(kPacketSamples - filled));
    if (read <= 0 && rewound) break;  // nothing comes any more: silence
    rewound = read <= 0;
    if (rewound) {
      sf_seek(m_file.get(), 0, SEEK_SET);
    } else {
      filled += static_cast<std::size_t>(read);
    }
  }
  for (std::size_t i = 0; i < kPacketSamples; ++i) {
    std::int32_t sum = 0;
    for (std::size_t channel = 0; i < filled && channel < m_channels; ++channel)
      sum += m_interleaved[i * m_channels + channel];
    m_packet[i] = static_cast<Sample>(sum / static_cast<std::int32_t>(m_channels));
  }
}

void Microphone::MakeTone() {
  for (std::size_t i = 0; i < kPacketSamples; ++i) {
    // Counted within a second, which holds a whole number of waves, so that the numbers stay small.
    const auto within = static_cast<double>((m_position + i) % kSamplesPerSecond);
    const double value = kToneAmplitude * std::sin(kTurn * kToneHertz * within / kSamplesPerSecond);
    m_packet[i] = static_cast<Sample>(value);
  }
}

}  // namespace television
