// The part of a service that keeps what has been: calls that are over, and voicemails.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

struct CallPartyRecord {
  std::string identity;
  std::string name;  // as it was shown
  int type = 0;      // IdentityType
  int status = 0;    // member::Status, the last one
};

struct CallRecord {
  std::int64_t number = 0;   // given by the service, never 0
  std::int64_t started = 0;  // seconds since the epoch
  int duration = 0;          // seconds
  bool incoming = false;
  bool conference = false;
  bool unseen = false;  // missed, and nobody has looked yet
  std::vector<CallPartyRecord> parties;
};

struct VoicemailRecord {
  std::int64_t number = 0;  // given by the service, never 0
  std::string partner;
  std::int64_t at = 0;  // seconds since the epoch
  int duration = 0;     // seconds
  int status = 0;       // voicemail::Status
};

// Threads: called by the event loop's only thread.
class HistoryService {
 public:
  virtual ~HistoryService() = default;

  virtual std::vector<CallRecord> PastCalls(std::string_view account) = 0;
  // Answers its number.
  virtual std::int64_t AddPastCall(std::string_view account, const CallRecord& call) = 0;
  virtual void SetPastCallUnseen(std::int64_t call, bool unseen) = 0;
  virtual void DeletePastCall(std::int64_t call) = 0;

  // Those that others have left for the account.
  virtual std::vector<VoicemailRecord> Voicemails(std::string_view account) = 0;
  // Answers its number, 0 when there is no such account.
  virtual std::int64_t AddVoicemail(std::string_view account, const VoicemailRecord& voicemail) = 0;
  virtual void ChangeVoicemailStatus(std::int64_t voicemail, int status) = 0;
  virtual void DeleteVoicemail(std::int64_t voicemail) = 0;
};

}  // namespace simulator
