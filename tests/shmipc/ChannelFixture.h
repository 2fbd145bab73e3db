// A channel of its own for every test.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Common/Platform.h"
#include "shmipc/leftovers.h"
#include "shmipc/segment.h"
#include "shmipc/shmipc.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace test {

struct CloseChannel {
  void operator()(SHMIPC_channel_t* channel) const { SHMIPC_close_channel(channel); }
};
using Channel = std::unique_ptr<SHMIPC_channel_t, CloseChannel>;

// Stands in for the system while it lives.
class StandIn : public zelto::Platform {
 public:
  StandIn() { zelto::SetSystem(this); }
  ~StandIn() override { zelto::SetSystem(nullptr); }
};

// Sleeps without sleeping, keeps the steps, and does something after each.
class SleepRecorder : public StandIn {
 public:
  std::int64_t Now() override { return now; }
  void Sleep(std::int64_t nanoseconds) override {
    now += nanoseconds;
    steps.push_back(nanoseconds);
    if (afterStep) afterStep();
  }

  std::int64_t now = 0;
  std::vector<std::int64_t> steps;
  std::function<void()> afterStep;
};

// A device root with a key file in it, whose keys belong to no segment before and none after the test: the
// file can have the number of one that a killed process once had.
class ChannelFixture : public testing::Test {
 protected:
  static constexpr char kPath[] = "/tmp/shmipc2_conn";
  static constexpr int kProject = 1;

  ChannelFixture() { SHMIPC_claim_keys(); }
  ~ChannelFixture() override;

  Channel Open(unsigned size, bool create, int project = kProject) const {
    return Channel(SHMIPC_open_channel(kPath, size, project, create ? 1 : 0));
  }

  // Both ends of a channel, initialised, with so much room for the ring.
  void Connect(unsigned size);

  static int Send(const Channel& channel, std::uint32_t type, const std::string& payload, int timeout = 0);
  // "type:payload", or the error's number.
  static std::string Receive(const Channel& channel, int timeout = 0);

  static shmipc::SegmentHeader& HeaderOf(const Channel& channel) { return shmipc::HeaderOf(channel.get()); }

  const DeviceRoot m_root;
  const Watchdog m_watchdog{240};
  const SurvivalCheck m_survival;
  Channel m_sender;
  Channel m_receiver;
};

}  // namespace test
