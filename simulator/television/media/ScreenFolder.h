#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace television {

// Writes a picture so that nobody ever sees half of one. False when that fails.
bool WritePicture(const std::string& path, const unsigned char* jpeg, std::size_t size);

// The pictures that the television shows, as files of a folder: picture-0000001.jpg and so on, the latest
// ones.
// Threads: one at a time.
class ScreenFolder {
 public:
  static constexpr std::uint64_t kMostPictures = 600;  // twenty seconds

  // Makes the folder. Throws std::runtime_error when that fails. An empty name keeps nothing.
  explicit ScreenFolder(const std::string& folder);

  void Show(const unsigned char* jpeg, std::size_t size);

 private:
  std::string PathOf(std::uint64_t number) const;

  const std::string m_folder;
  std::uint64_t m_shown = 0;
};

}  // namespace television
