#include "simulator/television/media/ScreenFolder.h"

#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace television {

namespace fs = std::filesystem;

bool WritePicture(const std::string& path, const unsigned char* jpeg, std::size_t size) {
  const std::string draft = path + ".new";
  {
    std::ofstream file(draft, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(jpeg), static_cast<std::streamsize>(size));
    if (!file.flush()) return false;
  }
  std::error_code error;
  fs::rename(draft, path, error);
  return !error;
}

ScreenFolder::ScreenFolder(const std::string& folder) : m_folder(folder) {
  std::error_code error;
  if (!folder.empty()) fs::create_directories(folder, error);
  if (error) throw std::runtime_error("can't make the screen's folder " + folder + ": " + error.message());
}

void ScreenFolder::Show(const unsigned char* jpeg, std::size_t size) {
  if (m_folder.empty()) return;
  WritePicture(PathOf(++m_shown), jpeg, size);
  if (m_shown <= kMostPictures) return;
  std::error_code ignored;
  fs::remove(PathOf(m_shown - kMostPictures), ignored);
}

std::string ScreenFolder::PathOf(std::uint64_t number) const {
  char name[40];
  std::snprintf(name, sizeof name, "/picture-%07" PRIu64 ".jpg", number);
  return m_folder + name;
}

}  // namespace television
