#include "zelhost/media/ZelhostIPCInfo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <deque>
#include <random>
#include <string>
#include <thread>
#include <utility>

namespace {

using namespace std::chrono;

constexpr unsigned kSlotSize = 960;
constexpr unsigned kSlots = 4;

struct Frame {
  std::string bytes;
  unsigned long stamp;
  bool operator==(const Frame& other) const { return bytes == other.bytes && stamp == other.stamp; }
};

class AMediaRing : public testing::Test {
 protected:
  bool Write(const Frame& frame) {
    return m_ring.Write(reinterpret_cast<const unsigned char*>(frame.bytes.data()),
                        static_cast<unsigned>(frame.bytes.size()), frame.stamp);
  }
  Frame ReadCopy() {
    unsigned char room[kSlotSize];
    unsigned size = 0;
    unsigned long stamp = 0;
    EXPECT_TRUE(m_ring.Read(room, &size, &stamp));
    return {std::string(reinterpret_cast<char*>(room), size), stamp};
  }
  unsigned char* ReadInPlace(Frame* frame) {
    unsigned char* data = nullptr;
    unsigned size = 0;
    if (!m_ring.Read(&data, &size, &frame->stamp)) return nullptr;
    frame->bytes.assign(reinterpret_cast<char*>(data), size);
    return data;
  }

  CZelhostBuffer m_ring{kSlotSize, kSlots};
};

TEST_F(AMediaRing, BehavesAsAQueueThatLosesItsOldest) {
  std::mt19937 random(4);
  std::deque<Frame> model;
  unsigned lost = 0;
  for (int step = 0; step < 20'000; ++step) {
    const unsigned choice = random() % 8;
    if (choice < 4) {
      const Frame frame{std::string(1 + random() % kSlotSize, static_cast<char>(random() % 256)), random()};
      ASSERT_TRUE(Write(frame));
      model.push_back(frame);
      if (model.size() > kSlots) {
        model.pop_front();
        ++lost;
      }
    } else if (choice < 7 && !model.empty()) {
      Frame read{};
      if (choice == 4) {
        read = ReadCopy();
      } else {
        ASSERT_NE(ReadInPlace(&read), nullptr);
      }
      ASSERT_EQ(read, model.front());
      model.pop_front();
    } else if (choice == 7 && step % 64 == 0) {
      m_ring.Flush();
      model.clear();
    }
    ASSERT_EQ(m_ring.Count(), model.size());
  }
  EXPECT_EQ(m_ring.Overruns(), lost);
}

TEST_F(AMediaRing, RefusesWhatNoSlotHolds) {
  EXPECT_FALSE(Write({std::string(kSlotSize + 1, 'x'), 0}));
  EXPECT_FALSE(Write({"", 0}));
  EXPECT_FALSE(m_ring.Write(nullptr, 1, 0));
  const unsigned char byte = 0;
  EXPECT_FALSE(CZelhostBuffer(kSlotSize, 0).Write(&byte, 1, 0));
  const auto start = steady_clock::now();
  Frame none{};
  EXPECT_EQ(ReadInPlace(&none), nullptr);
  EXPECT_GE(steady_clock::now() - start, milliseconds(25));
}

// What was handed out keeps its bytes however often the ring runs over, and frames come whole and in order.
TEST_F(AMediaRing, LeavesTheReaderItsFrameWhileTheWriterGoesOn) {
  constexpr unsigned long kFrames = 20'000;
  std::thread writer([this] {
    for (unsigned long i = 1; i <= kFrames; ++i) {
      Write({std::string(1 + i % kSlotSize, static_cast<char>(i % 256)), i});
      if (i % 16 == 0) std::this_thread::yield();
    }
  });
  unsigned long last = 0;
  Frame frame{};
  while (last < kFrames) {
    const unsigned char* const place = ReadInPlace(&frame);
    if (place == nullptr) continue;
    ASSERT_GT(frame.stamp, last);
    last = frame.stamp;
    std::this_thread::yield();
    ASSERT_EQ(std::memcmp(place, frame.bytes.data(), frame.bytes.size()), 0);
    ASSERT_EQ(frame.bytes, std::string(1 + last % kSlotSize, static_cast<char>(last % 256)));
  }
  writer.join();
}

}  // namespace
