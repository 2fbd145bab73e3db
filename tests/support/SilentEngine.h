// An engine that does nothing, for tests of a host.
#pragma once

#include "Common/IMoIPEngine.h"

namespace test {

class SilentEngine : public IMoIPEngine {
 public:
  const char* Execute(const char*, const char*, const char*, const char*, const char*) noexcept override {
    return "";
  }
  void RegisterEventCallback(MoIPEventCallback, void*) noexcept override {}
  void OnData(const CAVData*) noexcept override {}
  void RegisterDataCallback(MoIPDataCallback, void*) noexcept override {}
  void RegisterCommonCtrlFunc(MoIPCommonCtrlFunc, void*) noexcept override {}
};

}  // namespace test
