// The categories of trace lines: one bit each, and the label before the line.
#pragma once

// clang-format off
enum TraceCategory : unsigned {
  kTraceAccount       = 0x1,
  kTraceCall          = 0x2,
  kTraceChat          = 0x4,
  kTraceChatMessage   = 0x8,
  kTraceContact       = 0x10,
  kTraceContactGroup  = 0x20,
  kTraceContactSearch = 0x40,
  kTraceSearch        = 0x80,
  kTraceZelto         = 0x100,
  kTraceTransfer      = 0x200,
  kTraceVoicemail     = 0x400,
  kTraceCallMember    = 0x800,
  kTraceApp2App       = 0x1000,
  kTraceChatMember    = 0x2000,
  kTracePlain         = 0x8000,
  kTraceSms           = 0x10000,
  kTraceVideo         = 0x20000,

  kTraceLifetime      = 0x40000000,  // beside another bit: an object's creation or deletion
  kTraceTimeStamp     = 0x80000000,  // in the mask only: lines begin with process and time
  kTraceAll           = 0x0FFFFFFF,
};

struct TraceLabel {
  unsigned bit;
  const char* label;
};

// A line that carries several categories is named by the first one here.
inline constexpr TraceLabel kTraceLabels[] = {
    {kTraceAccount,       "ACCOUNT"},
    {kTraceCall,          "CALL"},
    {kTraceCallMember,    "CALLMEMBER"},
    {kTraceChatMember,    "CHATMEMBER"},
    {kTraceChat,          "CHAT"},
    {kTraceSms,           "SMS"},
    {kTraceChatMessage,   "CHATMESSAGE"},
    {kTraceContact,       "CONTACT"},
    {kTraceContactGroup,  "CONTACTGROUP"},
    {kTraceContactSearch, "CONTACTSEARCH"},
    {kTracePlain,         " "},
    {kTraceSearch,        "SEARCH"},
    {kTraceZelto,         "ZELTO"},
    {kTraceTransfer,      "TRANSFER"},
    {kTraceVoicemail,     "VOICEMAIL"},
    {kTraceVideo,         "VIDEO"},
    {kTraceApp2App,       "APP2APP"},
};
// clang-format on

static_assert(sizeof kTraceLabels / sizeof kTraceLabels[0] == 17, "one label per category");
