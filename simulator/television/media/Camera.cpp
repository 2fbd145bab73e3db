#include "simulator/television/media/Camera.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace television {

namespace fs = std::filesystem;

namespace {

constexpr char kBurntInName[] = "television";
constexpr std::size_t kMostPictures = 300;       // ten seconds, in memory
constexpr std::size_t kMostFrameSize = 1048576;  // the engine takes no larger ones

bool IsPicture(const fs::directory_entry& entry) {
  const std::string extension = entry.path().extension().string();
  return entry.is_regular_file() && (extension == ".jpg" || extension == ".jpeg");
}

std::vector<unsigned char> ReadFrame(const fs::path& path) {
  const std::size_t size = fs::file_size(path) + simulator::TestPicture::kTimeStampSize;
  if (size > kMostFrameSize)
    throw std::runtime_error("the camera's picture " + path.string() + " is too large");
  std::vector<unsigned char> frame(size);
  std::ifstream file(path, std::ios::binary);
  const std::size_t wanted = size - simulator::TestPicture::kTimeStampSize;
  file.read(reinterpret_cast<char*>(frame.data()) + simulator::TestPicture::kTimeStampSize,
            static_cast<std::streamsize>(wanted));
  const bool isJpeg = wanted > 2 && frame[4] == 0xff && frame[5] == 0xd8;
  if (!file || !isJpeg)
    throw std::runtime_error("the camera's picture " + path.string() + " is no JPEG picture");
  return frame;
}

}  // namespace

Camera::Camera(const std::string& folder) : m_testPicture(kBurntInName) {
  if (folder.empty()) return;
  std::vector<fs::path> paths;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (IsPicture(entry)) paths.push_back(entry.path());
  }
  if (error) throw std::runtime_error("can't read the camera's folder " + folder + ": " + error.message());
  if (paths.empty()) throw std::runtime_error("the camera's folder " + folder + " holds no JPEG picture");
  std::sort(paths.begin(), paths.end());
  paths.resize(std::min(paths.size(), kMostPictures));
  for (const fs::path& path : paths) m_frames.push_back(ReadFrame(path));
}

std::vector<unsigned char>& Camera::Next(const simulator::BurntIn& burnt) {
  if (m_frames.empty()) return m_testPicture.Draw(burnt);
  std::vector<unsigned char>& frame = m_frames[m_next];
  m_next = (m_next + 1) % m_frames.size();
  return frame;
}

}  // namespace television
