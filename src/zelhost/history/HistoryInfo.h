#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "apiwrapper/ZEString.h"

class Call;
class Voicemail;
class ZEObject;

// One entry of the history, a call or a voicemail: texts by key, and the runtime's object while there is one.
// A value that was never set is absent, which differs from an empty one.
// Threads: none of its own; the history manager's callers hold the service-host mutex.
class CHistoryInfo {
 public:
  // clang-format off
  enum KEY : int {
    KEY_TYPE = 0,   // "0" a call, "1" a voicemail
    KEY_IDENTITY,
    KEY_DISPLAY_NAME,
    KEY_TIME,       // seconds since the epoch
    KEY_LOCAL_TIME, // the same as the television writes it
    KEY_UNSEEN,
    KEY_CONFERENCE,
    KEY_INCOMING,
    KEY_PHONE,      // "1" for a phone number
    KEY_DURATION,   // seconds, of a voicemail
    KEY_MEMBERS,    // identities with ", " between them
    KEY_UNANSWERED, // "1" for an incoming call that nobody answered
    KEYS
  };
  // clang-format on
  // The blocks of the list, in their order.
  enum CATEGORY : int { CATEGORY_UNSEEN = 0, CATEGORY_SEEN };

  // The object outlives the entry or is taken from it by DropObject().
  explicit CHistoryInfo(Call* call);
  explicit CHistoryInfo(Voicemail* voicemail);

  // Whether a stands before b: unseen ones first, then newest first.
  static bool Compare(const CHistoryInfo* a, const CHistoryInfo* b);
  // The seconds at the beginning of a time's text; 0 for a text without any.
  static std::int64_t Seconds(const char* time);

  // The null string when absent. The local time is asked for at its first use: most entries never show it.
  const ZEString& Get(int key);
  void Set(KEY key, const ZEString& value);

  int Category() const { return m_nCategory; }
  void SetCategory(CATEGORY category) { m_nCategory = category; }
  std::int64_t Timestamp() const { return m_nTimestamp; }

  bool IsCall() const { return m_type == kCall; }
  bool IsVoicemail() const { return m_type == kVoicemail; }
  // A call that came in, was not answered and has not been seen.
  bool IsMissedCall() const;
  // A call from here to a phone number.
  bool IsDialledNumber() const;

  // Null once the runtime has dropped the object, and for an entry of the other type.
  Call* GetCall() const;
  Voicemail* GetVoicemail() const;
  ZEObject* Object() const { return m_pObject; }
  void DropObject() { m_pObject = nullptr; }
  // The object's id when the entry was made.
  unsigned int ObjectId() const { return m_nObjectId; }

 private:
  enum Type { kCall, kVoicemail };

  CHistoryInfo(Type type, ZEObject* object);
  const ZEString& Value(KEY key) const { return m_values[static_cast<std::size_t>(key)]; }
  ZEString LocalTime() const;

  std::array<ZEString, KEYS> m_values;
  Type m_type;
  int m_nCategory = CATEGORY_SEEN;
  std::int64_t m_nTimestamp = 0;
  ZEObject* m_pObject;
  unsigned int m_nObjectId;
};
