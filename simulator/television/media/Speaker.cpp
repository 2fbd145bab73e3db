#include "simulator/television/media/Speaker.h"

#include <cstring>
#include <stdexcept>
#include <utility>

namespace television {

namespace {

// Ten seconds; a disk that needs longer has failed.
constexpr std::size_t kMostWaiting = 10 * kPacketsPerSecond;

}  // namespace

Speaker::Speaker(const std::string& file) : m_file(nullptr, &sf_close) {
  if (file.empty()) return;
  SF_INFO info{};
  info.samplerate = kSamplesPerSecond;
  info.channels = 1;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  m_file.reset(sf_open(file.c_str(), SFM_WRITE, &info));
  if (m_file == nullptr)
    throw std::runtime_error("can't write the speaker's file " + file + ": " + sf_strerror(nullptr));
  // So that the file can be read at any time, also when the program is killed.
  sf_command(m_file.get(), SFC_SET_UPDATE_HEADER_AUTO, nullptr, SF_TRUE);
  m_writer = std::make_unique<Worker<Sound>>(kMostWaiting, [this](Sound& sound) { Write(sound); });
}

std::size_t Speaker::Play(const unsigned char* data, std::size_t size) {
  const std::size_t samples = size / sizeof(Sample);
  bool taken = true;
  if (m_writer != nullptr && samples > 0) {
    Sound sound(samples);
    std::memcpy(sound.data(), data, samples * sizeof(Sample));
    taken = m_writer->Add(std::move(sound));
  }
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (!taken) m_lost += samples;
  return m_buffer.Add(samples * sizeof(Sample), PlaybackBuffer::Clock::now());
}

std::uint64_t Speaker::Lost() const {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return m_lost;
}

void Speaker::Write(const Sound& sound) {
  const auto written = sf_write_short(m_file.get(), sound.data(), static_cast<sf_count_t>(sound.size()));
  if (written == static_cast<sf_count_t>(sound.size())) return;
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_lost += sound.size() - static_cast<std::size_t>(written);
}

}  // namespace television
