#include "simulator/runtime/media/PictureLine.h"

#include "Common/Platform.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/media/PacketTypes.h"

namespace simulator {
namespace {

// Two seconds; the largest frames then take 32 MiB.
constexpr std::size_t kMostEcho = 60;
// A camera does not keep what cannot be sent: the next picture is newer.
constexpr std::size_t kMostFilmed = 3;
constexpr std::size_t kMostOthers = 1000;

constexpr std::int64_t kPictureTime = 1000 * zelto::kNanosecondsPerMillisecond / 30;

// The camera's, and taken for the shape of frames that cannot be read.
constexpr PictureShape kUsualShape{640, 480};

}  // namespace

PictureLine::PictureLine()
    : m_camera("Far end", static_cast<int>(kUsualShape.width), static_cast<int>(kUsualShape.height)),
      m_sender("pictures to the engine", false),
      m_receiver("pictures from the engine", false,
                 [this](std::uint32_t type, const unsigned char* payload, std::size_t size) {
                   return Receive(type, payload, size);
                 }),
      m_film("camera", kPictureTime, [this] { Film(); }) {}

void PictureLine::Start(SHMIPC_channel_t* toEngine, SHMIPC_channel_t* fromEngine) {
  m_sender.Start(toEngine);
  m_receiver.Start(fromEngine);
}

void PictureLine::Stop() {
  Show(FarPicture::None);
  m_receiver.Stop();
  m_sender.Stop();
}

void PictureLine::Show(FarPicture picture) {
  m_film.Stop();
  m_filmed = 0;
  const zelto::MutexLock lock(m_lock);
  if (picture != m_picture) m_sender.Clear();
  m_picture = picture;
  m_shape = {};
  if (picture != FarPicture::TestPicture) return;
  SendShape(kUsualShape);
  m_film.Start();
}

void PictureLine::Send(std::uint32_t type, const void* payload, std::size_t size) {
  m_sender.Push(type, payload, size, kMostOthers);
}

bool PictureLine::Receive(std::uint32_t type, const unsigned char* payload, std::size_t size) {
  if (type == packet::kKeyFrameRequest) {
    // Every picture of a test picture is a whole one, so the next is, too; an echo leaves it to the
    // engine's own camera.
    Log("key frame requested: " + std::to_string(++m_keyFrameRequests));
    return true;
  }
  if (type != packet::kMedia || size <= packet::kTimeStampSize) return false;
  ++m_received;
  const zelto::MutexLock lock(m_lock);
  if (m_picture == FarPicture::Echo) Return(payload, size);
  return true;
}

void PictureLine::Return(const unsigned char* frame, std::size_t size) {
  const PictureShape shape =
      ReadPictureShape(frame + packet::kTimeStampSize, size - packet::kTimeStampSize).value_or(kUsualShape);
  if (!(shape == m_shape)) {
    SendShape(shape);
    m_shape = shape;
  }
  m_sender.Push(packet::kMedia, frame, size, kMostEcho);
}

void PictureLine::SendShape(const PictureShape& shape) {
  const std::uint32_t words[] = {shape.width, shape.height};
  Send(packet::kShape, words, sizeof words);
}

void PictureLine::Film() {
  const std::int64_t microseconds = zelto::System().Now() / 1000;
  const std::vector<unsigned char>& frame = m_camera.Draw({m_filmed++, microseconds});
  m_sender.Push(packet::kMedia, frame.data(), frame.size(), kMostFilmed);
}

}  // namespace simulator
