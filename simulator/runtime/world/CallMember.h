// One far end of a call.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "simulator/runtime/world/CallContext.h"
#include "simulator/runtime/world/CallVideo.h"

namespace simulator {

// A member with its object and, unless it is a telephone, the objects of its pictures; they go with it.
// Threads: none of its own.
class CallMember {
 public:
  // `videoChanged` is told when its pictures have a new status and must not delete the member.
  CallMember(const CallContext& context, const std::string& identity, int status,
             const std::function<void()>& videoChanged);
  CallMember(const CallMember&) = delete;
  CallMember& operator=(const CallMember&) = delete;
  // Deletes the objects, the engine being told.
  ~CallMember();

  unsigned Id() const { return m_id; }
  const std::string& Identity() const { return m_identity; }
  // Null for a telephone.
  CallVideo* Sent() { return m_sent.get(); }
  CallVideo* Received() { return m_received.get(); }
  // The one of the two with that id, null for none.
  CallVideo* Video(unsigned id);

  // Whether its sent pictures have begun or ended since the last question.
  bool HasChangedSending();
  bool IsSending() const { return m_sending; }

  int Status() const { return m_status; }
  // Talking or held.
  bool IsConnected() const;
  // Neither ended nor failed.
  bool IsThere() const;
  void SetStatus(int status);
  void SetNumber(int property, long long value);
  void SetText(int property, const std::string& text);

  // The pictures of a call that has been answered, of one that is held, and of one that is over.
  void OfferVideo();
  void HoldVideo(bool held);
  void EndVideo();

 private:
  World& m_world;
  const std::string m_identity;
  unsigned m_id;
  int m_status;
  bool m_sending = false;
  std::unique_ptr<CallVideo> m_sent;
  std::unique_ptr<CallVideo> m_received;
};

}  // namespace simulator
