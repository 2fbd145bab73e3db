#pragma once

#include <string>

namespace television {

// The folder that holds the television's file system for one engine.
// Threads: one.
class DeviceRoot {
 public:
  // Uses an existing folder, which stays when this object goes; an empty path makes a fresh one in the
  // temporary folder, which is removed. Throws std::runtime_error when it cannot be made.
  explicit DeviceRoot(const std::string& path);
  ~DeviceRoot();
  DeviceRoot(const DeviceRoot&) = delete;
  DeviceRoot& operator=(const DeviceRoot&) = delete;

  // Makes the folders that a television has and puts the runtime where the engine looks for it.
  void Furnish(const std::string& runtimeProgram);

  const std::string& Path() const { return m_path; }
  // The runtime's test door.
  std::string Door() const;

 private:
  std::string m_path;
  bool m_temporary;
};

}  // namespace television
