#include "simulator/television/DeviceRoot.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace television {

namespace fs = std::filesystem;

namespace {

constexpr char kEngineHome[] = "/mtd_rwcommon/moip/engines/Zelto";

constexpr const char* kFolders[] = {
    "/mtd_rwcommon/moip/engines/Zelto/DOUBLE_TALK",
    "/mtd_rwcommon/moip/snapshot",
    "/mtd_down/moip/engines/Zelto",
    "/mtd_down/widgets/normal",
    "/dtv",
    "/tmp",
};

std::string FreshFolder() {
  std::string pattern = (fs::temp_directory_path() / "zelto-tv.XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("no folder for the television in " + pattern + ": " + std::strerror(errno));
  }
  return pattern;
}

// A link, so that a runtime that was built anew is the one that starts.
void Place(const fs::path& program, const fs::path& link) {
  std::error_code ignored;
  fs::remove(link, ignored);
  fs::create_symlink(program, link);
}

}  // namespace

DeviceRoot::DeviceRoot(const std::string& path)
    : m_path(path.empty() ? FreshFolder() : fs::absolute(path).string()), m_temporary(path.empty()) {}

DeviceRoot::~DeviceRoot() {
  if (!m_temporary) return;
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

void DeviceRoot::Furnish(const std::string& runtimeProgram) {
  const fs::path program = fs::absolute(runtimeProgram);
  if (!fs::exists(program)) throw std::runtime_error("no runtime program at " + program.string());
  for (const char* folder : kFolders) fs::create_directories(m_path + folder);
  Place(program, m_path + kEngineHome + "/zelhost");
  Place(program, m_path + kEngineHome + "/DOUBLE_TALK/zelhost");
}

std::string DeviceRoot::Door() const { return m_path + kEngineHome + "/.Zelto/door"; }

}  // namespace television
