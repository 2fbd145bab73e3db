// A television's file system of the test's own.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace test {

// A temporary folder that stands before every path of the television while the object lives, with the
// folders that a television has. Removed at the end.
// Threads: one; made before the engine's threads and gone after them.
class DeviceRoot {
 public:
  DeviceRoot() {
    char pattern[] = "/tmp/zelto-device-XXXXXX";
    m_path = mkdtemp(pattern);
    setenv("ZELTO_DEVICE_ROOT", m_path.c_str(), 1);
    for (const char* folder : {"/dtv", "/tmp", "/mtd_rwcommon/moip/engines/Zelto"}) {
      std::filesystem::create_directories(m_path + folder);
    }
  }
  DeviceRoot(const DeviceRoot&) = delete;
  DeviceRoot& operator=(const DeviceRoot&) = delete;
  ~DeviceRoot() {
    unsetenv("ZELTO_DEVICE_ROOT");
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  const std::string& Path() const { return m_path; }
  // A path of the television as this machine knows it.
  std::string operator/(const std::string& television) const { return m_path + television; }

  bool Has(const std::string& television) const { return std::filesystem::exists(m_path + television); }
  void Write(const std::string& television, const std::string& content) const {
    std::ofstream(m_path + television, std::ios::binary) << content;
  }
  // Empty when there is no such file.
  std::string Read(const std::string& television) const {
    std::ifstream file(m_path + television, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // A program in the runtime's place: a shell script.
  void InstallRuntime(const std::string& script = "exec sleep 600") const {
    constexpr char kPlace[] = "/mtd_rwcommon/moip/engines/Zelto/zelhost";
    Write(kPlace, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(m_path + kPlace, std::filesystem::perms::owner_all);
  }

 private:
  std::string m_path;
};

}  // namespace test
