// Arbitrary streams from an engine into the runtime's frame reader, dispatcher and decoder, time passing in
// between. Invariant: every request that wants a reply gets exactly one.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "simulator/common/Frames.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/protocol/Decoder.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/requests/Dispatcher.h"
#include "simulator/runtime/service/SimulatedService.h"

namespace {

class CountingOutbox : public simulator::Outbox {
 public:
  void Send(std::string_view text) override {
    if (!text.empty() && text[0] == '#') ++replies;
    decoder.Words(text);
  }
  int replies = 0;
  simulator::Decoder decoder;
};

// One home for all runs: what one run stores the next may find.
struct Home {
  Home() {
    char pattern[] = "/tmp/zelhost-fuzz-XXXXXX";
    path = mkdtemp(pattern);
    device = std::make_unique<simulator::DeviceStore>(path + "/.Zelto");
    service =
        std::make_unique<simulator::SimulatedService>(simulator::DeviceStore::DataFolder(device->Folder()));
  }
  ~Home() {
    service.reset();
    device.reset();
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  std::string path;
  std::unique_ptr<simulator::DeviceStore> device;
  std::unique_ptr<simulator::SimulatedService> service;
};

Home& TheHome() {
  static Home home;
  return home;
}

void Run(simulator::Session& session, CountingOutbox& outbox, simulator::FrameReader& reader) {
  simulator::Dispatcher dispatcher(session, nullptr);
  simulator::Request request;
  std::string_view text;
  for (std::int64_t now = 0; reader.Next(text); now += 50) {
    request.Parse(text);
    outbox.decoder.Words(text);
    const int before = outbox.replies;
    dispatcher.Serve(text);
    if (outbox.replies != before + (request.NeedsReply() ? 1 : 0)) std::abort();
    session.scheduler.RunUntil(now);
  }
  session.scheduler.RunUntil(1000000);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // Refusals are logged, one line for nearly every run.
  simulator::g_logs = false;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CountingOutbox outbox;
  // A call to "crash" must not end the run.
  simulator::Session session(
      simulator::Surroundings{*TheHome().service, *TheHome().device, outbox, 0, {}, {}, nullptr, [](int) {}});
  simulator::FrameReader reader;
  reader.Append({reinterpret_cast<const char*>(data), size});
  Run(session, outbox, reader);
  return 0;
}
