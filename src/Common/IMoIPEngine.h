// What a television's framework sees of the engine: the interface, its records and the two entry points.
// This is the only header a host needs; it includes nothing but the standard library.
#pragma once

#include <cstdlib>
#include <cstring>
#include <string>

#if defined(__GNUC__)
#define ZELTO_EXPORT __attribute__((visibility("default")))
#else
#define ZELTO_EXPORT
#endif

// An event on its way to the host. Types of 256 and above are engine events, those below are public
// events (docs/integrating.md lists both). The parameters are NUL-terminated texts or null; the engine
// frees them right after the callback returned, so the host copies what it keeps.
// For public event 17 parameter 1 is no text but a notice record.
struct CEngineEvent {
  int type;
  char* param1;
  char* param2;
};

// Base of the records that public events carry.
class CEngineData {
 public:
  virtual ~CEngineData() = default;
};

// A popup that the host is to show over the programme, as parameter 1 of public event 17: the parameter
// points to this record. The engine deletes it, with all its texts, right after the callback returned. Texts
// are NUL-terminated, null when there is none; titles, descriptions and labels are UTF-16, the others UTF-8.
class CEngineGlobalNoticeInfo : public CEngineData {
 public:
  CEngineGlobalNoticeInfo() = default;
  CEngineGlobalNoticeInfo(const CEngineGlobalNoticeInfo&) = delete;
  CEngineGlobalNoticeInfo& operator=(const CEngineGlobalNoticeInfo&) = delete;
  ~CEngineGlobalNoticeInfo() override {
    std::free(title);
    std::free(description);
    std::free(iconPath);
    for (unsigned short* text : buttonTexts) std::free(text);
    for (char* command : buttonCallbacks) std::free(command);
  }

  int id = 0;                       // public event 18 hides the notice by it
  bool append = true;               // false: takes the place of the notice of this id that is shown
  int duration = 3000;              // milliseconds on the screen; 0: until it is hidden
  int buttonCount = 3;              // 0 to 3
  int defaultFocus = 1;             // index of the button that has the focus
  unsigned short* title = nullptr;  // all texts: the C allocator's
  unsigned short* description = nullptr;
  char* iconPath = ::strdup("Resource/icon_zelto.png");  // relative to the engine's home
  unsigned short* buttonTexts[3] = {};
  char* buttonCallbacks[3] = {};  // the command to execute when the button is pressed
};

// Audio or video on its way between host and engine. Never owned by the receiver: the data is valid
// during the call only.
struct CAVData {
  int type;           // 0 audio samples; other values are video and control records
  int value;          // per record: time stamp of a video frame, else 0
  unsigned int size;  // bytes at data
  unsigned char* data;
};

// Host functions. They may be called from any of the engine's threads; the event callback and the
// control function are never entered by two threads at once. None may throw.
using MoIPEventCallback = bool (*)(const CEngineEvent* event, void* user);
using MoIPDataCallback = bool (*)(const CAVData* data, void* user, void* extra);
using MoIPCommonCtrlFunc = const char* (*)(const char* cmd, const char* p1, const char* p2, const char* p3,
                                           const char* p4, void* user);

// The engine as the host drives it. The order of the virtual operations is the binary interface.
// Threads: every operation may be called from any host thread, but not from inside a host function.
class IMoIPEngine {
 public:
  // Runs one of the string commands. Null texts count as empty. The answer is the engine's; it stays
  // valid until four further commands have run. Unknown commands answer the empty text.
  virtual const char* Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                              const char* p4) noexcept = 0;
  // Stores the event callback; null stops the delivery.
  virtual void RegisterEventCallback(MoIPEventCallback callback, void* user) noexcept = 0;
  // Takes a record of microphone audio (type 0) or camera video; null is ignored. The record is copied.
  virtual void OnData(const CAVData* data) noexcept = 0;
  // Stores the data callback and loads the service: register the other two functions first.
  virtual void RegisterDataCallback(MoIPDataCallback callback, void* user) noexcept = 0;
  // Stores the function through which the engine asks the television to act.
  virtual void RegisterCommonCtrlFunc(MoIPCommonCtrlFunc function, void* user) noexcept = 0;

  virtual ~IMoIPEngine() = default;

  // Queries: true when the answer is complete; results are written only then, except that
  // GetContactInfo may already have filled id and displayName when a later step fails.
  virtual bool IsInMyContact(const std::string& email, std::string& id) noexcept;
  virtual bool IsLoggedIn(std::string& id) noexcept;
  virtual bool GetRecentCall(const int& index, int& kind, std::string& id, std::string& displayName,
                             int& timestamp) noexcept;
  virtual bool GetContactInfo(const int& index, std::string& id, std::string& displayName, int& status,
                              std::string& avatarPath) noexcept;
  virtual bool GetContactImage(const std::string& id, std::string& path) noexcept;
  virtual bool GetContactStatus(const std::string& id, int& status) noexcept;
  virtual bool PlaceCall(const std::string& target, int type) noexcept;
  virtual bool PlayMail(int timestamp) noexcept;
  virtual bool GetMobilePhoneNumber(const std::string& id, std::string& number) noexcept;
  virtual bool GetHomePhoneNumber(const std::string& id, std::string& number) noexcept;
  virtual bool GetOfficePhoneNumber(const std::string& id, std::string& number) noexcept;
};

inline bool IMoIPEngine::IsInMyContact(const std::string&, std::string&) noexcept { return false; }
inline bool IMoIPEngine::IsLoggedIn(std::string&) noexcept { return false; }
inline bool IMoIPEngine::GetRecentCall(const int&, int&, std::string&, std::string&, int&) noexcept {
  return false;
}
inline bool IMoIPEngine::GetContactInfo(const int&, std::string&, std::string&, int&, std::string&) noexcept {
  return false;
}
inline bool IMoIPEngine::GetContactImage(const std::string&, std::string&) noexcept { return false; }
inline bool IMoIPEngine::GetContactStatus(const std::string&, int&) noexcept { return false; }
inline bool IMoIPEngine::PlaceCall(const std::string&, int) noexcept { return false; }
inline bool IMoIPEngine::PlayMail(int) noexcept { return false; }
inline bool IMoIPEngine::GetMobilePhoneNumber(const std::string&, std::string&) noexcept { return false; }
inline bool IMoIPEngine::GetHomePhoneNumber(const std::string&, std::string&) noexcept { return false; }
inline bool IMoIPEngine::GetOfficePhoneNumber(const std::string&, std::string&) noexcept { return false; }

extern "C" {
// The engine; repeated calls answer the same object. Null when it cannot be built.
ZELTO_EXPORT IMoIPEngine* engine_create() noexcept;
// Ends the engine and everything it started, within 8 seconds. Null is ignored.
ZELTO_EXPORT void engine_destroy(IMoIPEngine* engine) noexcept;
}
