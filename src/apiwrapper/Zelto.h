// The root of the client protocol: the conversation with the runtime process, the queue of its events, the
// registry of proxies, and the service-wide requests.
#pragma once

#include <array>

#include "apiwrapper/Account.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/CallMember.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/PriceQuote.h"
#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEIntList.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/ZEPtrVector.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringDict.h"
#include "apiwrapper/ZEStringList.h"
#include "apiwrapper/ZETransport.h"

class Alert;
class App2App;
class Chat;
class ChatMember;
class ChatMessage;
class ContactSearch;
class ContactSearchTerm;
class Search;
class SearchTerm;
class Sms;
class Transfer;
class Video;
class Voicemail;
class ZEObject;

// The application derives from it to make its own proxies and to hear of events.
// Threads: no lock inside. Every call, also into a proxy, is made with the service-host mutex held;
// callbacks run on the thread that called runQueue() or pollEvents().
class Zelto {
 public:
  // Enumerators travel as tokens (tables/); -1 stands for a token the engine doesn't know.
  enum LIBSTATUS : int { CONSTRUCTED = 1, STARTING, RUNNING, STOPPING, STOPPED, FATAL_ERROR };
  enum CONNSTATUS : int { OFFLINE = 1, CONNECTING, PAUSING, ONLINE };
  enum STARTRESULT : int {
    START_SUCCESS = 1,
    ERROR_API_MISMATCH,
    ERROR_INVALID_UI_VERSION,
    ERROR_START_FAILED
  };
  enum FILEERROR : int {};
  enum PROXYTYPE : int {};
  enum UPGRADEAVAILABILITY : int {};
  enum RCONNECTION_STATUS : int {};
  enum CLIENTPROP : int {};
  enum PLAYRESULT : int {};
  enum OBJECTTYPE : int {
    TYPE_SETUP = 1,
    TYPE_ROOT,
    TYPE_AUDIO,
    TYPE_APP2APP,
    TYPE_ACCOUNT,
    TYPE_CALL,
    TYPE_CALLMEMBER,
    TYPE_TRANSFER,
    TYPE_VOICEMAIL,
    TYPE_SMS,
    TYPE_CHAT,
    TYPE_CHATMEMBER,
    TYPE_CHATMESSAGE,
    TYPE_CONTACTGROUP = 15,
    TYPE_CONTACT,
    TYPE_SEARCH,
    TYPE_CONTACTSEARCH
  };

  // Borrows the transport, which outlives the root, and gives it log() when it has no log function.
  explicit Zelto(ZETransport* transport);
  Zelto(const Zelto&) = delete;
  Zelto& operator=(const Zelto&) = delete;
  // Deletes what Stop() would have deleted, without a word to the runtime.
  virtual ~Zelto();

  // Called after every queued event with the new number of waiting events.
  virtual void onEventReady(unsigned int count);

  // Factories: a new proxy of the class. The registry takes it over.
  virtual Account* newAccount(int oid);
  virtual Contact* newContact(int oid);
  virtual ContactGroup* newContactGroup(int oid);
  virtual CallMember* newCallMember(int oid);
  virtual Call* newCall(int oid);
  virtual Video* newVideo(int oid);
  virtual Transfer* newTransfer(int oid);
  virtual Voicemail* newVoicemail(int oid);
  virtual Sms* newSms(int oid);
  virtual Chat* newChat(int oid);
  virtual ChatMember* newChatMember(int oid);
  virtual ChatMessage* newChatMessage(int oid);
  virtual Search* newSearch(int oid);
  virtual ContactSearch* newContactSearch(int oid);
  virtual App2App* newApp2App(const ZEString& name);
  virtual PriceQuote* newPriceQuote(int oid);
  virtual Alert* newAlert(int oid);

  // Callbacks; all do nothing here. A handler may issue requests and may delete any proxy.
  virtual void OnLibStatusChange(LIBSTATUS status);
  virtual void OnConnStatusChange(CONNSTATUS status);
  virtual void OnFileError(FILEERROR error);
  virtual void OnProxyAuthenticationFailure(PROXYTYPE type);
  virtual void OnUpgradeInfo(UPGRADEAVAILABILITY availability, const ZEString& text);
  virtual void OnUICRequest(const ZEString& blob);
  virtual void OnRConnectionStatusChange(RCONNECTION_STATUS status);
  virtual void OnAvailableDeviceListChange();
  virtual void OnNrgLevelsChange();
  virtual void OnNewCall(Call* call);
  virtual void OnIncomingTransfer(Transfer* transfer);
  virtual void OnIncomingVoicemail(Voicemail* voicemail);
  virtual void OnChatMessage(Chat* chat, ChatMessage* message);
  virtual void OnNewCustomContactGroup(ContactGroup* group);
  virtual void OnContactOnlineAppearance(Contact* contact);
  virtual void OnIncomingPriceQuote(PriceQuote* quote);
  virtual void OnIncomingAlert(Alert* alert);

  // Writes the text and a line feed to standard error: where every line of the protocol goes.
  static void log(const ZEString& text);

  // Connects the transport; false with one error line. cleanup() disconnects it.
  bool init();
  void cleanup();

  // The handshake with the runtime, as a fresh conversation: queued events are dropped and proxies of an
  // earlier one deleted. Answers a STARTRESULT, or -1 when the runtime gave none.
  int Start(bool flag, const ZEString& uiVersion);
  // Tells the runtime (waiting for its answer or not), runs the queue once more and deletes every remaining
  // proxy, naming each one unless m_reportLeaks is cleared.
  void Stop(bool wait);

  // Reads what waits, up to that many milliseconds for the first message (negative: as long as it takes),
  // and dispatches. False once the transport is not connected.
  bool pollEvents(int milliseconds);
  // Dispatches up to ten queued events; the others wait for the next call.
  void runQueue();
  unsigned int eventsWaitingCount() const { return m_eventsWaiting; }

  // One-way: the text goes out unchanged.
  void send(const ZEString& text);
  // Numbers the request and waits for its reply, queueing every other message. The reply without its id,
  // "b " for an error (which is logged), the null string when the stream ended.
  ZEString sendAndBlock(const ZEString& text);
  // The same for a request without its leading "a ", answered as a dictionary; empty on every failure.
  ZEStringDict sendBlockParse(const ZEString& text);

  // The registry: at most one proxy per id. The proxy with that id whatever its class, or null.
  ZEObject* getObject(unsigned int oid) const;
  // Takes over a proxy. One without an id, or with the id of another one, stays outside.
  void insertObject(ZEObject* object);
  // Unlinks without deleting.
  void removeObject(unsigned int oid);
  // Logs one line for every proxy.
  void dumpObjectList();

  // The proxy with that id, made on first sight. Null for id 0, and, with one error line, when the id
  // belongs to a proxy of another class.
  Account* getAccount(unsigned int oid);
  Contact* getContact(unsigned int oid);
  ContactGroup* getContactGroup(unsigned int oid);
  CallMember* getCallMember(unsigned int oid);
  Call* getCall(unsigned int oid);
  Video* getVideo(unsigned int oid);
  Transfer* getTransfer(unsigned int oid);
  Voicemail* getVoicemail(unsigned int oid);
  Sms* getSms(unsigned int oid);
  Chat* getChat(unsigned int oid);
  ChatMember* getChatMember(unsigned int oid);
  ChatMessage* getChatMessage(unsigned int oid);
  Search* getSearch(unsigned int oid);
  ContactSearch* getContactSearch(unsigned int oid);
  PriceQuote* getPriceQuote(unsigned int oid);
  Alert* getAlert(unsigned int oid);
  // The one application-to-application object, made on first call. The root owns it until Stop().
  App2App* getApp2App(const ZEString& name);
  // The same, null when it was never asked for.
  App2App* findApp2App() const { return m_app2App; }

  // The proxy with that id when it is of class T (which is complete where this is used); null when there is
  // none and, with one error line, when it is of another class. Nothing is made.
  template <class T>
  T* findObject(unsigned int oid) {
    return checkedCast<T>(getObject(oid));
  }

  // Keys by the table: tokens to ids (-1 for unknown ones, the last of equals stays), ids to tokens (unknown
  // ones are left out). Values stay as they are.
  static ZEIntDict mapDict(const ZEStringDict& values, const PMAP* table);
  static ZEStringDict mapDict(const ZEIntDict& values, const PMAP* table);

  // Fills the property caches of many objects of one class (slots are ZEObject*; null ones are skipped) with
  // one request. False, without a request, when there is no object.
  bool GetMultipleObjectsProps(const ZEPtrVector& objects, const ZEIntList& ids);
  // Tells the runtime, one-way, which properties of a class nobody wants to hear of.
  void FilterOutProps(OBJECTTYPE type, const ZEIntList& ids);

  bool m_reportLeaks = true;  // whether Stop() names the proxies that are still alive

  // Debug builds (ZELTO_DEBUG_LOCKS) end the process when an entry point is reached while this answers
  // false: whether the calling thread holds the service-host mutex. Null: nobody asks. Set it before any
  // thread uses a root.
  static bool (*s_lockIsHeld)();

  // ---------------------------------------------------------------------------------------------------------
  // Service-wide requests (ZeltoRequests*.cpp). A result that the runtime withholds reads as false, 0, -1 for
  // an enumerator, the null string, an empty list or no object; a request that answers nothing is one-way.
  // ---------------------------------------------------------------------------------------------------------

  // The service itself. Country codes are two letters in lower case; dictionaries are keyed by them.
  FILEERROR GetLastFileError(ZEString& fileName, int& errorCode);
  CONNSTATUS GetConnStatus();
  RCONNECTION_STATUS GetRConnectionStatus();
  bool StartRConnection(bool flag, const ZEString& text);
  bool StartRConnectionSnap(bool flag, const ZEString& snap);
  bool StartRConnectionAlwaysAsk(bool flag);
  void StopRConnection();
  unsigned int GetRConnectionIAP();
  unsigned int GetUsedPort();
  ZEString GetDebugInfo();
  void Log(const ZEString& source, const ZEString& text);
  unsigned int GetTotalOnlineUserCount();
  bool Ping();
  void DeclareClientProp(CLIENTPROP property, const ZEString& value);
  int GetIntClientProp(CLIENTPROP property);
  LIBSTATUS GetLibStatus();
  ZEString GetDefaultDBPath();
  ZEString GetFatalErrorMessage();
  ZEStringDict GetISOCountryNameDict(const ZEString& language);
  ZEStringDict GetISOLanguageNameDict(const ZEString& language);
  ZEStringDict GetISOCountryPrefixDict();
  ZEStringDict GetISOCountryDialExampleDict();
  ZEStringList GetISOCountryCodeList();
  ZEStringList GetISOLanguageCodeList();
  bool IsISOCountryCode(const ZEString& country);
  ZEString GetISOCountryName(const ZEString& country, const ZEString& language);
  ZEString GetISOLanguageName(const ZEString& code, const ZEString& language);
  int GetISOCountryPrefix(const ZEString& country);
  ZEString GetISOCountryDialExample(const ZEString& country);
  ZEStringList GetISOCountryCodeByPrefix(int prefix);
  ZEString GetVersion();
  ZEString GetPlatform();
  unsigned int GetUnixTimestamp();
  UPGRADEAVAILABILITY GetUpgradeInfo(ZEString& version);

  // Accounts
  // Names of the accounts that the runtime has signed in before.
  ZEStringList GetExistingAccounts();
  Account* GetDefaultAccount();
  Account* GetAccount(const ZEString& identity);
  // Room left in a profile property that held this value.
  int GetFreeBytesLeft(Account::PROPERTY property, const ZEString& value);
  bool IsValidEmail(const ZEString& email);
  ZEString GetSuggestedZeltoname(const ZEString& name);
  Account::VALIDATERESULT ValidatePassword(const ZEString& name, const ZEString& password);

  // Contacts
  Contact* GetContact(const ZEString& identity);
  Contact* FindContactBySpeedDial(const ZEString& speedDial);
  // `property` is where the number was found.
  Contact* FindContactByPstnNumber(const ZEString& number, Contact::PROPERTY& property);
  Contact::NORMALIZERESULT NormalizeIdentity(const ZEString& identity, bool newAccount, ZEString& normalized);
  Contact::TYPE GetTypeByIdentity(const ZEString& identity);

  // The runtime's store of settings; it persists them.
  ZEString GetStr(const ZEString& key);
  int GetInt(const ZEString& key);
  void SetStr(const ZEString& key, const ZEString& value);
  void SetInt(const ZEString& key, int value);
  bool IsDefined(const ZEString& key);
  void Delete(const ZEString& key);
  ZEStringList GetSubKeys(const ZEString& key);

  // Sound
  // `sound` is the caller's number for it, by which PlayStop ends it; `data` is a binary string.
  PLAYRESULT PlayStart(unsigned int sound, const ZEString& data, bool loop, bool flag);
  void PlayStop(unsigned int sound);
  void StartRecordingTest();
  void StopRecordingTest();
  void PlayDTMF(CallMember::DTMF tone);
  bool GetAvailableOutputDevices(ZEStringList& ids, ZEStringList& names, ZEStringList& texts);
  bool GetAvailableRecordingDevices(ZEStringList& ids, ZEStringList& names);
  bool SelectSoundDevices(const ZEString& output, const ZEString& input, const ZEString& ring);
  void GetNrgLevels(unsigned int& micLevel, unsigned int& playbackLevel);
  int GetSpeakerVolume();
  void SetSpeakerVolume(int volume);
  int GetMicVolume();
  void SetMicVolume(int volume);
  // Waits for an answer only when told to; the null string otherwise.
  ZEString VoiceCommand(const ZEString& command, bool wait);

  // Application to application
  // Null when the runtime refuses; otherwise what getApp2App() answers.
  App2App* CreateApp2App(const ZEString& name);

  // Contact groups
  ContactGroup* GetHardwiredContactGroup(ContactGroup::TYPE type);
  // Slots of ContactGroup.
  ZEPtrVector GetCustomContactGroups();
  ContactGroup* CreateCustomContactGroup();

  // Calls
  Call* CreateCall();
  Call* JoinExistingCall(const ZEString& blob, const ZEString& token);
  Call* GetCall(const ZEString& guid);
  // Slots of Call.
  ZEPtrVector GetUnseenMissedCalls();
  ZEPtrVector GetHistoricalCalls();
  void ClearCallHistory(Call::CLEARCALLHISTORYTYPE type, const ZEString& identity);

  // Video
  Video* GetPreviewVideo();
  void DisplayVideoDeviceTuningDialog();
  bool GetVideoDeviceCapabilities(const ZEString& name, const ZEString& path, ZEString& capabilities);
  bool GetAvailableVideoDevices(ZEStringList& devices);
  // As VoiceCommand.
  ZEString VideoCommand(const ZEString& command, bool wait);

  // Transfers
  Transfer* StartTransfer(const ZEString& identities, const ZEString& path);
  // Slots of Transfer.
  ZEPtrVector GetActiveTransfers();

  // Voicemails
  Voicemail* GetGreeting(const ZEString& identity);

  // Text messages
  Sms* CreateConfirmationRequestSms();
  Sms* CreateConfirmationSubmitSms();
  Sms* CreateOutgoingSms();
  ZEStringList GetValidatedSmsNumbers();
  ZEString GetLastConfirmationNumber();

  // Chats
  Chat* CreateChat();
  Chat* GetChat(const ZEString& name);
  Chat* OpenChatTo(const ZEString& identity);
  Chat* GetPublicChat(const ZEString& blob);
  void DeleteAllMessages();
  // Slots of Chat.
  ZEPtrVector GetRecentChats();
  ZEPtrVector GetUnreadChats();
  ZEPtrVector GetBookmarkedChats();
  unsigned int GetChatMemberCountLimit();

  // Searches among the runtime's objects
  // `limit` -1: no limit. Null when the search could not start.
  Search* SearchObjects(const SearchTerm& term, int limit);

  // Searches of the directory
  ContactSearch* NewSearch(const ContactSearchTerm& term, bool flag, int limit);
  ContactSearch* NewBasicSearch(const ZEString& text, bool flag, int limit);
  ContactSearch* NewIdentitySearch(const ZEString& identity, bool flag, int limit);
  ZEStringList GetOptimalAgeRanges();

  // Offers
  PriceQuote* IssuePriceQuote(const ZEString& subject, PriceQuote::TYPE type, const ZEString& detail1,
                              const ZEString& detail2, const ZEString& detail3, const ZEString& detail4,
                              const ZEString& detail5);

 private:
  static constexpr unsigned int kBuckets = 769;  // prime; short chains for thousands of proxies

  template <class T>
  T* checkedCast(ZEObject* object) {
    T* cast = dynamic_cast<T*>(object);
    if (object != nullptr && cast == nullptr) logWrongClass(object);
    return cast;
  }
  template <class T>
  T* findOrMake(unsigned int oid, T* (Zelto::*factory)(int));
  void logWrongClass(ZEObject* object);

  static void assertLockHeld(const char* entry);
  ZEString makeId();
  void queueEvent(const ZEString& text);
  ZEString runPoll(const ZEString& id);  // until a message with that id
  void runPoll(int milliseconds);        // what waits
  enum class Dispatched { Counts, Dropped, EndsPass };
  Dispatched dispatchMessage(const ZEString& message);
  void deleteProxies(bool report);

  ZETransport* const m_transport;
  unsigned int m_requestCounter = 0;
  ZEStringList m_events;
  unsigned int m_eventsWaiting = 0;
  std::array<ZEObject*, kBuckets> m_registry{};
  App2App* m_app2App = nullptr;
  bool m_started = false;
};
