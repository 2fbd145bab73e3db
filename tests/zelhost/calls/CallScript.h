// A call as a scripted runtime tells of it: the objects 70 (call), 71 (its member), 72 and 73 (the member's
// videos, received and sent), 80 (another call) and 90 (a voicemail).
#pragma once

#include <string>

#include "apiwrapper/Call.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "apiwrapper/tables/PropertyMaps.h"
#include "tests/support/ScriptedRuntime.h"
#include "tests/zelhost/RuntimeMemory.h"

namespace test::call {

constexpr unsigned kCall = 70;
constexpr unsigned kMember = 71;
constexpr unsigned kRecvVideo = 72;
constexpr unsigned kSendVideo = 73;
constexpr unsigned kOtherCall = 80;
constexpr unsigned kVoicemail = 90;

constexpr char kCallClass[] = "1133";
constexpr char kMemberClass[] = "1988";
constexpr char kVideoClass[] = "1311";
constexpr char kVoicemailClass[] = "1684";

constexpr char kNewCall[] = "1122";
constexpr char kNewVoicemail[] = "1397";
constexpr char kDeleted[] = "2048";
constexpr char kChanged[] = "2073";

constexpr char kEnd[] = "1163";
constexpr char kMembers[] = "1345";
constexpr char kStartVideo[] = "1761";
constexpr char kAnswer[] = "1615";
constexpr char kRing[] = "1033";

constexpr char kHangUp[] = "1849";
constexpr char kToVoicemail[] = "2043";
constexpr char kForward[] = "1279";

inline std::string Token(const PMAP* table, int value) {
  return static_cast<const char*>(ZEPMap(table).map(value));
}
inline std::string Id(unsigned id) { return ScriptedRuntime::pair("1137", std::to_string(id)); }
inline std::string Changed(unsigned id, const std::string& property, const std::string& value) {
  return Id(id) + ScriptedRuntime::pair("1551", property) + ScriptedRuntime::pair("1667", value);
}
inline std::string MemberStatus(int status) {
  return Changed(kMember, Token(CALLMEMBER_PROPERTY_MAP, CallMember::P_STATUS),
                 Token(CALLMEMBER_STATUS_MAP, status));
}
inline std::string Ongoing(unsigned call, const char* value) {
  return Changed(call, Token(CALL_PROPERTY_MAP, Call::P_ONGOING), value);
}

inline void Serve(ScriptedRuntime& runtime, RuntimeMemory& memory) {
  runtime.reply(kMembers, ScriptedRuntime::pair("0", std::to_string(kMember)));
  runtime.reply("1781", ScriptedRuntime::pair("0", std::to_string(kRecvVideo)));
  runtime.reply("1513", ScriptedRuntime::pair("0", std::to_string(kSendVideo)));
  for (const unsigned call : {kCall, kOtherCall}) {
    memory.SetProperty(call, Token(CALL_PROPERTY_MAP, Call::P_INCOMING), "1");
    memory.SetProperty(call, Token(CALL_PROPERTY_MAP, Call::P_PARTNER_IDENTITY), "bob");
  }
  memory.SetProperty(kMember, Token(CALLMEMBER_PROPERTY_MAP, CallMember::P_IDENTITY), "bob");
  memory.SetProperty(kMember, Token(CALLMEMBER_PROPERTY_MAP, CallMember::P_DISPLAY_NAME), "Bob \x03\x02 B");
  memory.SetProperty(kMember, Token(CALLMEMBER_PROPERTY_MAP, CallMember::P_TYPE),
                     Token(CALLMEMBER_TYPE_MAP, 1));
}

}  // namespace test::call
