// The program zelhost.
#include <unistd.h>

#include <cstdio>
#include <exception>

#include "simulator/common/EndSignals.h"
#include "simulator/common/Frames.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/Options.h"
#include "simulator/runtime/Runtime.h"
#include "simulator/runtime/protocol/Decoder.h"

namespace {

constexpr int kFailure = 1;

// Standard input holds the frames of one direction or of both.
int DecodeInput() {
  simulator::FrameReader reader;
  simulator::Decoder decoder;
  std::string_view text;
  for (;;) {
    char* room = reader.Room();
    const ssize_t size = read(STDIN_FILENO, room, reader.RoomSize());
    if (size <= 0) break;
    reader.Filled(static_cast<std::size_t>(size));
    while (reader.Next(text)) std::printf("%s\n", decoder.Words(text).c_str());
  }
  if (!reader.Broken() && reader.Pending() == 0) return 0;
  simulator::Log(reader.Broken() ? "that is no frame" : "the last frame is not whole");
  return kFailure;
}

int Serve(const simulator::Options& options) {
  simulator::EndSignals::Block();
  simulator::Runtime runtime(options);
  runtime.Run();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  simulator::Options options;
  int status = 0;
  if (!simulator::ParseOptions(argc, argv, options, status)) return status;
  try {
    return options.decode ? DecodeInput() : Serve(options);
  } catch (const std::exception& failure) {
    simulator::Log(failure.what());
    return kFailure;
  }
}
