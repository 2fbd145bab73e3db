// The media threads between a scripted runtime and a recording host, over real shared memory.
#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "tests/zelhost/media/MediaFixture.h"

namespace {

using test::Item;
using test::Words;
using testing::ElementsAre;

using AMediaBridge = test::MediaFixture;

TEST_F(AMediaBridge, HandsTheFarEndsSoundOn) {
  m_media->StartExchangeData(2);
  for (const unsigned type : {0u, 1u, 6u, 3u, 4u}) EXPECT_TRUE(m_audioIn->Send(type, "abc"));
  EXPECT_TRUE(m_audioIn->Send(2, ""));
  EXPECT_THAT(Take(6), ElementsAre(Item{1, "abc"}, Item{2, "abc"}, Item{6, "abc"}, Item{1, "abc"},
                                   Item{0, "abc"}, Item{3, Words({48000, 1, 16})}));
}

// The host takes its time for the first volume: of two that follow only the later reaches it, and sound that
// comes meanwhile does not wait.
TEST_F(AMediaBridge, TellsTheNewestMicrophoneVolumeWithoutHoldingSoundBack) {
  m_media->StartExchangeData(2);
  EXPECT_TRUE(m_audioIn->Send(5, Words({0, 65535})));  // not wanted
  EXPECT_TRUE(m_audioIn->Send(4, "1"));
  EXPECT_THAT(Take(1), ElementsAre(Item{0, "1"}));
  m_media->SetAutoMic(true);
  HoldVolumes(true);
  for (const auto& words : {Words({1, 40000}), Words({0}), Words({0, 655})})
    EXPECT_TRUE(m_audioIn->Send(5, words));
  EXPECT_THAT(Take(1), ElementsAre(Item{5, Words({0, 0})}));
  EXPECT_TRUE(m_audioIn->Send(5, Words({0, 40000})));
  EXPECT_TRUE(m_audioIn->Send(5, Words({0, 0xffffffff})));
  EXPECT_TRUE(m_audioIn->Send(4, "2"));
  EXPECT_THAT(Take(1), ElementsAre(Item{0, "2"}));
  HoldVolumes(false);
  EXPECT_THAT(Take(1), ElementsAre(Item{5, Words({0, 100})}));
}

TEST_F(AMediaBridge, HandsTheFarEndsPicturesOn) {
  m_media->StartExchangeData(4);
  for (const unsigned type : {1u, 2u, 3u, 5u, 7u, 8u}) EXPECT_TRUE(m_videoIn->Send(type, "x"));
  EXPECT_THAT(Take(6), ElementsAre(Item{18, "x"}, Item{19, "x"}, Item{20, "x"}, Item{21, "x"}, Item{23, "x"},
                                   Item{24, "x"}));
  for (const std::uint32_t stamp : {7u, 0xffffffffu, 0u}) {
    EXPECT_TRUE(m_videoIn->Send(4, Words({stamp}) + "picture"));
  }
  EXPECT_THAT(Take(3),
              ElementsAre(Item{16, "picture", 20}, Item{16, "picture", 40}, Item{16, "picture", 60}));
  EXPECT_TRUE(m_videoIn->Send(6, Words({250001, 5})));
  EXPECT_TRUE(m_videoIn->Send(6, Words({9})));
  EXPECT_THAT(Take(2), ElementsAre(Item{22, Words({250000, 5})}, Item{22, Words({9})}));
  for (const auto& shape : {Words({1280, 720}), Words({640, 480}), Words({720, 1280}), Words({352, 288}),
                            Words({0x1c71c71d, 1})}) {
    EXPECT_TRUE(m_videoIn->Send(0, shape));
  }
  EXPECT_EQ(Take(5).size(), 5u);
  for (const char* kind : {"1", "2", "3"})
    EXPECT_TRUE(m_host.WaitFor(CZeltoManager::REMOTE_VIDEO_ASPECT, kind));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::REMOTE_VIDEO_ASPECT), 5);
}

// Enough bytes for the best level in every window, then hardly any.
TEST_F(AMediaBridge, TellsWhenTheQualityOfPicturesChanges) {
  m_media->StartExchangeData(4);
  const std::string picture(200'000, 'p');
  const auto sendUntil = [&](int event, const std::string& bytes) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (m_host.CountUntilNow(event) == 0 && std::chrono::steady_clock::now() < limit) {
      EXPECT_TRUE(m_videoIn->Send(4, bytes));
    }
    return m_host.CountUntilNow(event) > 0;
  };
  EXPECT_TRUE(sendUntil(CZeltoManager::CALL_QUALITY_4, picture));
  EXPECT_TRUE(sendUntil(CZeltoManager::CALL_QUALITY_0, "tiny"));
}

TEST_F(AMediaBridge, OutlivesEveryPacketAndEveryHeader) {
  m_media->StartExchangeData(1);
  for (const auto& in : {std::ref(*m_audioIn), std::ref(*m_videoIn)}) {
    for (unsigned type = 0; type < 256; ++type) {
      for (const std::size_t length : {0u, 3u, 4u, 64u}) {
        EXPECT_TRUE(in.get().Send(type, std::string(length, '\xff')));
      }
    }
    EXPECT_TRUE(in.get().Send(0x80000000u, ""));
  }
  const auto restart = [](const test::End& end) {
    shmipc::PublishWord(end.Header().readOffset, 0);
    shmipc::PublishWord(end.Header().writeOffset, 0);
  };
  for (const auto* end : {m_audioIn.get(), m_videoIn.get(), m_audioOut.get(), m_videoOut.get()}) {
    shmipc::SegmentHeader& header = end->Header();
    for (auto* word : {&header.capacity, &header.readOffset, &header.writeOffset, &header.configSize,
                       &header.senderAttached, &header.receiverAttached}) {
      const std::uint32_t proper = *word;
      for (const std::uint32_t nasty :
           {0u, 1u, 15u, 16u, 2431u, 2432u, 0x7ffffff0u, 0x80000000u, 0xffffffffu}) {
        shmipc::PublishWord(*word, nasty);
        GiveSound(std::string(960, 's'));
        GivePicture(std::string(5000, 'p'), 1);
        m_media->SendKeyFrameRequest();
      }
      shmipc::PublishWord(*word, proper);
      restart(*end);
    }
  }
  Take(0);
  // What the threads had read before the words were right again may cost a packet.
  const auto arrives = [&](const test::End& end, unsigned type, const std::string& bytes,
                           const Item& record) {
    for (int attempt = 0; attempt < 50; ++attempt) {
      if (!end.Send(type, bytes)) restart(end);
      for (const Item& item : Take(1)) {
        if (item.type == record.type && item.bytes == record.bytes) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(arrives(*m_audioIn, 1, "alive", {2, "alive"}));
  EXPECT_TRUE(arrives(*m_videoIn, 4, Words({0}) + "alive", {16, "alive"}));
}

struct Microphones {
  const char* beamFormer;
  const char* count;
  std::string words;
};

TEST_F(AMediaBridge, DescribesTheMicrophonesFirst) {
  m_host.Answers("GetCameraMicDistance", "12");
  for (const Microphones& row :
       {Microphones{"1", "2", Words({0, 0, 0})}, Microphones{"", "4", Words({0, 0, 0})},
        Microphones{"0", "2", Words({2, 12, 0})}, Microphones{"0", "4", Words({1, 12, 12})},
        Microphones{"0", "x", Words({2, 45, 0})}}) {
    m_host.Answers("IsCameraBeamFormerEnabled", row.beamFormer);
    m_host.Answers("GetCameraNumOfMic", row.count);
    m_media->StartExchangeData(2);
    EXPECT_EQ(m_audioOut->Receive(), (Item{8, row.words}));
    m_media->StopExchangeData(2);
  }
}

TEST_F(AMediaBridge, SendsTheHostsSoundAndPictures) {
  GiveSound("too early");
  m_media->EnableDump(2);
  std::filesystem::create_directories(m_device / "/mtd_rwcommon");
  m_media->StartExchangeData(2);
  m_media->StartExchangeData(3);
  EXPECT_EQ(m_audioOut->Receive().type, 8u);
  const std::string sound(960, 's');
  GiveSound(std::string(2000, 'x'));
  GiveSound(sound);
  EXPECT_EQ(m_audioOut->Receive(), (Item{4, sound}));
  GivePicture("abc", 1);
  GivePicture("", 1);
  GivePicture("....picture", 0x01020304);
  EXPECT_EQ(m_videoOut->Receive(), (Item{4, Words({0x01020304}) + "picture"}));
  GivePicture(std::string(600'000, 'x'), 1);  // more than the channel holds
  GivePicture("....next", 5);
  EXPECT_EQ(m_videoOut->Receive(), (Item{4, Words({5}) + "next"}));
  m_media->SendKeyFrameRequest();
  for (int request = 0; request < 3; ++request) EXPECT_EQ(m_videoOut->Receive(), (Item{9, ""}));
  zelto::SleepMilliseconds(60 * 50);
  EXPECT_TRUE(m_videoOut->IsEmpty());
  m_media->StopExchangeData(1);
  EXPECT_EQ(m_device.Read("/mtd_rwcommon/TX_Audio.pcm"), sound);
}

// Nobody reads: the channels run full, and every stop still comes to its end.
TEST_F(AMediaBridge, EndsWhileTheRuntimeReadsNothing) {
  for (int call = 0; call < 2; ++call) {
    m_media->StartExchangeData(1);
    m_media->StartExchangeData(1);
    for (int i = 0; i < 40; ++i) {
      GiveSound(std::string(960, 's'));
      GivePicture(std::string(100'000, 'p'), i);
      zelto::SleepMilliseconds(20);
    }
    m_media->SendKeyFrameRequest();
    if (call == 0) m_media->StopExchangeData(1);
    m_media->StopExchangeData(5);
  }
  HangUp();  // by then the runtime is gone, and with it the last user of the segments
  m_media->Destroy();
  m_media->StartExchangeData(1);  // without channels
  zelto::SleepMilliseconds(100);
}

TEST_F(AMediaBridge, TakesDataFromAnyThreadWhileCallsAndServicesComeAndGo) {
  std::atomic<bool> stop{false};
  std::vector<std::thread> threads;
  for (const int type : {0, 1}) {
    threads.emplace_back([&, type] {
      std::string bytes(type == 0 ? 960 : 20'000, 'd');
      while (!stop) Give(type, 1, bytes);
    });
  }
  HangUp();
  for (int load = 0; load < 4; ++load) {
    m_media->Initialize();
    for (const int type : {1, 2, 3, 4}) {
      m_media->StartExchangeData(type);
      m_media->SendKeyFrameRequest();
      if (load % 2 == 0) m_media->StopExchangeData(type);
    }
    if (load == 2) m_host.Execute("EnableTxVideoDump");
  }
  m_host.Engine()->RegisterDataCallback(nullptr, nullptr);
  stop = true;
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
