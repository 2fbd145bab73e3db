#include "zelhost/apiwrapper/client/FileBinary.h"

#include <fcntl.h>
#include <cerrno>

#include <algorithm>
#include <string>
#include <string_view>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"

namespace {

constexpr std::size_t kChunk = 65536;
// A frame carries 16 MiB, and some of a picture's bytes take two.
constexpr std::size_t kLargestFile = 12U << 20;

// Relative paths are the process's own.
std::string Place(const ZEString& path) {
  const std::string place(path.view());
  return path.startWith("/") ? zelto::DevicePath(place) : place;
}

// Appends what the descriptor gives; false when reading fails.
bool ReadAll(int file, std::string* content) {
  while (content->size() < kLargestFile) {
    const std::size_t held = content->size();
    content->resize(held + std::min(kChunk, kLargestFile - held));
    const ssize_t got = zelto::System().Read(file, content->data() + held, content->size() - held);
    content->resize(held + (got > 0 ? static_cast<std::size_t>(got) : 0));
    if (got == 0) return true;
    if (got < 0 && errno != EINTR) return false;
  }
  return true;
}

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = zelto::System().Write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

std::string Decode(const ZEString& data) {
  ZEString binary = data;
  binary.markAsBinary();
  std::string bytes(binary.length(), '\0');
  bytes.resize(binary.toBinary(bytes.data()));
  return bytes;
}

std::string Shown(std::string bytes) {
  for (char& byte : bytes) {
    if (byte < ' ' || byte > '~') byte = '.';
  }
  return bytes;
}

}  // namespace

// Not waiting for a writer keeps a pipe in the file's place from blocking.
ZEString C_FileToBin(const ZEString& path) {
  const int file = zelto::System().Open(Place(path).c_str(), O_RDONLY | O_NONBLOCK, 0);
  if (file < 0) {
    zelto::Print("File reading failed, couldn't open %s\n", static_cast<const char*>(path));
    return ZEString();
  }
  std::string content;
  if (!ReadAll(file, &content)) zelto::Print("Failed to read file.");
  zelto::System().Close(file);
  if (content.empty()) return ZEString();
  return ZEString::from(content.data(), static_cast<unsigned>(content.size()));
}

bool C_BinToFile(const ZEString& data, const ZEString& path, bool print) {
  const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_NONBLOCK;
  const int file = zelto::System().Open(Place(path).c_str(), flags, 0666);
  if (file < 0) {
    zelto::Print("Avatar file open fail");
    return false;
  }
  const std::string bytes = Decode(data);
  const bool written = WriteAll(file, bytes);
  zelto::System().Close(file);
  if (print) zelto::Print("%s\n", Shown(bytes).c_str());
  if (!written) {
    zelto::Print("File %s can't be written", static_cast<const char*>(path));
    return false;
  }
  zelto::Print("File saved to %s (%u bytes)\n", static_cast<const char*>(path),
               static_cast<unsigned>(bytes.size()));
  return true;
}
