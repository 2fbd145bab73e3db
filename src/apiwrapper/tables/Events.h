// The events that the runtime raises, by their numbers in ZELTO_CALLBACK_MAP, which holds their tokens. An
// event of an object also carries ZEKey::ObjectId, one of the application-to-application object
// ZEKey::App2AppName.
#pragma once

#include <iterator>

#include "apiwrapper/tables/EnumMaps.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/MethodRow.h"

// clang-format off
namespace ZEEventNumber {
enum : int {
  PropertyChange             = 1,
  ObjectDelete               = 2,
  LibStatusChange            = 3,
  ConnStatusChange           = 4,
  FileError                  = 5,
  ProxyAuthenticationFailure = 6,
  AvailableDeviceListChange  = 7,
  NrgLevelsChange            = 8,
  GroupChanged               = 9,
  NewCustomContactGroup      = 11,
  ContactOnlineAppearance    = 12,
  ContactGoneOffline         = 13,
  NewCall                    = 14,
  IncomingDTMF               = 15,
  IncomingTransfer           = 16,
  IncomingVoicemail          = 17,
  ChatMessage                = 18,
  Ignored                    = 19,
  UpgradeInfo                = 20,
  NewSearchResult            = 21,
  Datagram                   = 22,
  IncomingPriceQuote         = 23,
  IncomingAlert              = 24,
  UICRequest                 = 25,
  LastFrameCapture           = 26,
  RConnectionStatusChange    = 27,
};
}  // namespace ZEEventNumber

namespace ZEEventRows {
using namespace ZERow;
inline constexpr ZEEvent ALL_EVENTS[] = {
    {ZEEventNumber::PropertyChange,             "PropertyChange",             {Text(ZEKey::Property), Text(ZEKey::Value)}},
    {ZEEventNumber::ObjectDelete,               "ObjectDelete",               {}},
    {ZEEventNumber::LibStatusChange,            "LibStatusChange",            {Token(ZEKey::LibStatus, ZELTO_LIBSTATUS_MAP)}},
    {ZEEventNumber::ConnStatusChange,           "ConnStatusChange",           {Token(ZEKey::ConnStatus, ZELTO_CONNSTATUS_MAP)}},
    {ZEEventNumber::FileError,                  "FileError",                  {Token(ZEKey::FileError, ZELTO_FILEERROR_MAP)}},
    {ZEEventNumber::ProxyAuthenticationFailure, "ProxyAuthenticationFailure", {Token(ZEKey::ProxyType, ZELTO_PROXYTYPE_MAP)}},
    {ZEEventNumber::AvailableDeviceListChange,  "AvailableDeviceListChange",  {}},
    {ZEEventNumber::NrgLevelsChange,            "NrgLevelsChange",            {}},
    {ZEEventNumber::GroupChanged,               "GroupChanged",               {ObjectId(ZEKey::Contact), Flag(ZEKey::Added)}},
    {ZEEventNumber::NewCustomContactGroup,      "NewCustomContactGroup",      {}},
    {ZEEventNumber::ContactOnlineAppearance,    "ContactOnlineAppearance",    {}},
    {ZEEventNumber::ContactGoneOffline,         "ContactGoneOffline",         {}},
    {ZEEventNumber::NewCall,                    "NewCall",                    {}},
    {ZEEventNumber::IncomingDTMF,               "IncomingDTMF",               {Token(ZEKey::Dtmf, CALLMEMBER_DTMF_MAP)}},
    {ZEEventNumber::IncomingTransfer,           "IncomingTransfer",           {}},
    {ZEEventNumber::IncomingVoicemail,          "IncomingVoicemail",          {}},
    {ZEEventNumber::ChatMessage,                "ChatMessage",                {ObjectId(ZEKey::Chat)}},
    {ZEEventNumber::Ignored,                    "Ignored",                    {}},
    {ZEEventNumber::UpgradeInfo,                "UpgradeInfo",                {Token(ZEKey::Availability, ZELTO_UPGRADEAVAILABILITY_MAP), Text(ZEKey::Version)}},
    {ZEEventNumber::NewSearchResult,            "NewSearchResult",            {ObjectId(ZEKey::Contact)}},
    {ZEEventNumber::Datagram,                   "Datagram",                   {Text(ZEKey::DatagramStream), Binary(ZEKey::DatagramData)}},
    {ZEEventNumber::IncomingPriceQuote,         "IncomingPriceQuote",         {}},
    {ZEEventNumber::IncomingAlert,              "IncomingAlert",              {}},
    {ZEEventNumber::UICRequest,                 "UICRequest",                 {Binary(ZEKey::Blob)}},
    {ZEEventNumber::LastFrameCapture,           "LastFrameCapture",           {Binary(ZEKey::Image), Number(ZEKey::Width), Number(ZEKey::Height)}},
    {ZEEventNumber::RConnectionStatusChange,    "RConnectionStatusChange",    {Token(ZEKey::RConnectionStatus, ZELTO_RCONNECTION_MAP)}},
};
static_assert(std::size(ALL_EVENTS) == 26);
}  // namespace ZEEventRows
using ZEEventRows::ALL_EVENTS;
// clang-format on
