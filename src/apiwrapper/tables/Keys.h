// The keys of requests, replies and events, each with its name: ZEKey::Password is the key on the wire, and
// KEY_NAMES tells people what a key means. A macro makes both, so that name and token stand once.
#pragma once

#include <iterator>

// clang-format off
#define ZE_KEYS(X) \
  X(Result,             "0") \
  X(TransferTarget,     "1016") \
  X(Partner,            "1018") \
  X(AccessToken,        "1026") \
  X(Prefix,             "1029") \
  X(Guidelines,         "1040") \
  X(SavePassword,       "1046") \
  X(PlaybackLevel,      "1050") \
  X(CallGuid,           "1056") \
  X(Path,               "1058") \
  X(FileName,           "1059") \
  X(Members,            "1063") \
  X(Loop,               "1066") \
  X(CharactersLeft,     "1074") \
  X(Type,               "1085") \
  X(Video,              "1086") \
  X(Hold,               "1096") \
  X(MicLevel,           "1098") \
  X(Group,              "1102") \
  X(QuoteDetail4,       "1104") \
  X(LoginFlag,          "1105") \
  X(Targets,            "1106") \
  X(QuoteDetail1,       "1120") \
  X(ObjectId,           "1137") \
  X(Picture,            "1138") \
  X(Buddy,              "1148") \
  X(ChatName,           "1152") \
  X(LibStatus,          "1156") \
  X(Capability,         "1159") \
  X(Reason,             "1161") \
  X(LogSource,          "1162") \
  X(Blob,               "1188") \
  X(DeviceTexts,        "1194") \
  X(Number,             "1197") \
  X(TransferIdentity,   "1201") \
  X(Target,             "1216") \
  X(Files,              "1237") \
  X(PhoneNumber,        "1243") \
  X(ValidatedNumbers,   "1251") \
  X(Objects,            "1271") \
  X(Added,              "1293") \
  X(Activity,           "1294") \
  X(Slot,               "1301") \
  X(ErrorCode,          "1309") \
  X(ProxyType,          "1335") \
  X(Height,             "1337") \
  X(Flag,               "1338") \
  X(Stream,             "1341") \
  X(TextFlag,           "1343") \
  X(Language,           "1348") \
  X(QuoteDetail3,       "1355") \
  X(NewPassword,        "1365") \
  X(FileError,          "1371") \
  X(CountryCode,        "1375") \
  X(OutputDevice,       "1380") \
  X(DatagramStream,     "1383") \
  X(MikeGranted,        "1384") \
  X(EndAction,          "1391") \
  X(Contact,            "1396") \
  X(NewAccount,         "1422") \
  X(Geometry,           "1425") \
  X(Chat,               "1431") \
  X(DeviceNames,        "1436") \
  X(RConnectionSnap,    "1470") \
  X(JoinBlob,           "1474") \
  X(AllowOffers,        "1475") \
  X(Wait,               "1482") \
  X(Width,              "1492") \
  X(ChatBlob,           "1499") \
  X(DeviceIds,          "1512") \
  X(Role,               "1531") \
  X(Property,           "1551") \
  X(Sound,              "1552") \
  X(UiVersion,          "1553") \
  X(Expiry,             "1555") \
  X(RingDevice,         "1560") \
  X(AlertString,        "1562") \
  X(LanguageCode,       "1576") \
  X(Availability,       "1581") \
  X(Chunks,             "1582") \
  X(Body,               "1586") \
  X(CapabilityFlag,     "1592") \
  X(SearchFlag,         "1605") \
  X(App2AppName,        "1608") \
  X(From,               "1617") \
  X(NormalizedIdentity, "1629") \
  X(EarlierMessages,    "1639") \
  X(Options,            "1645") \
  X(DeleteFlag,         "1647") \
  X(Topic,              "1648") \
  X(ConnStatus,         "1652") \
  X(QuoteDetail5,       "1660") \
  X(Value,              "1667") \
  X(Mute,               "1682") \
  X(Window,             "1698") \
  X(Image,              "1700") \
  X(SearchTerm,         "1711") \
  X(DisplayName,        "1712") \
  X(RedialIdentity,     "1715") \
  X(InputDevice,        "1728") \
  X(ConnectTo,          "1731") \
  X(OtherCall,          "1734") \
  X(Capabilities,       "1751") \
  X(Origin,             "1757") \
  X(Message,            "1765") \
  X(VideoDevices,       "1767") \
  X(Data,               "1768") \
  X(RConnectionText,    "1772") \
  X(ResultLimit,        "1777") \
  X(NewText,            "1786") \
  X(BaseName,           "1788") \
  X(SoundId,            "1816") \
  X(QuoteDetail2,       "1821") \
  X(MikeRequested,      "1829") \
  X(WrapperVersion,     "1830") \
  X(Text,               "1837") \
  X(SpeedDial,          "1845") \
  X(AuthLevel,          "1855") \
  X(Properties,         "1857") \
  X(QuoteSubject,       "1859") \
  X(Label,              "1880") \
  X(Email,              "1883") \
  X(SettingKey,         "1887") \
  X(Dtmf,               "1901") \
  X(SoundFlag,          "1906") \
  X(UserName,           "1915") \
  X(Bookmark,           "1926") \
  X(MatchedProperty,    "1970") \
  X(Identity,           "1971") \
  X(OldPassword,        "1973") \
  X(Command,            "1980") \
  X(WithVideo,          "1981") \
  X(Hint,               "1995") \
  X(Password,           "2006") \
  X(DeviceName,         "2013") \
  X(RConnectionStatus,  "2019") \
  X(DevicePath,         "2024") \
  X(LeaveReason,        "2028") \
  X(Version,            "2034") \
  X(DatagramData,       "2044") \
  X(Volume,             "2069") \
  X(Limit,              "2074") \
  X(HistoryIdentity,    "2101")

namespace ZEKey {
#define ZE_KEY_CONSTANT(name, token) inline constexpr char name[] = token;
ZE_KEYS(ZE_KEY_CONSTANT)
#undef ZE_KEY_CONSTANT
}  // namespace ZEKey

struct ZEKeyName {
  const char* key;
  const char* name;
};

inline constexpr ZEKeyName KEY_NAMES[] = {
#define ZE_KEY_NAME(name, token) {token, #name},
    ZE_KEYS(ZE_KEY_NAME)
#undef ZE_KEY_NAME
};
static_assert(std::size(KEY_NAMES) == 143);
// clang-format on
