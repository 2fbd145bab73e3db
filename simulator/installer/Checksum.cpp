#include "simulator/installer/Checksum.h"

#include <zlib.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace installer {
namespace {

constexpr char kSuffix[] = ".crc32";
constexpr std::size_t kDigits = 8;
constexpr std::size_t kPiece = 256 * 1024;

}  // namespace

std::optional<std::uint32_t> ExpectedChecksum(const std::string& package) {
  const std::string path = package + kSuffix;
  std::error_code failure;
  if (!std::filesystem::is_regular_file(path, failure)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  std::string digits(kDigits, '\0');
  file.read(digits.data(), static_cast<std::streamsize>(kDigits));
  if (file.gcount() != static_cast<std::streamsize>(kDigits)) return std::nullopt;
  for (const char digit : digits)
    if (std::isxdigit(static_cast<unsigned char>(digit)) == 0) return std::nullopt;
  if (std::isxdigit(file.peek()) != 0) return std::nullopt;
  return static_cast<std::uint32_t>(std::strtoul(digits.c_str(), nullptr, 16));
}

std::optional<std::uint32_t> Checksum(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::vector<char> piece(kPiece);
  uLong sum = crc32(0, nullptr, 0);
  do {
    file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    sum = crc32(sum, reinterpret_cast<const Bytef*>(piece.data()), static_cast<uInt>(file.gcount()));
  } while (file);
  if (!file.eof()) return std::nullopt;
  return static_cast<std::uint32_t>(sum);
}

}  // namespace installer
