// The television's own paths that the service host works with. They go through zelto::DevicePath right
// where they reach the operating system.
#pragma once

namespace zelhost {

inline constexpr char kEngineHome[] = "/mtd_rwcommon/moip/engines/Zelto";
inline constexpr char kRuntimeExecutable[] = "/mtd_rwcommon/moip/engines/Zelto/zelhost";
inline constexpr char kDoubleTalkExecutable[] = "/mtd_rwcommon/moip/engines/Zelto/DOUBLE_TALK/zelhost";
inline constexpr char kDatabaseFolder[] = "/mtd_rwcommon/moip/engines/Zelto/.Zelto";
inline constexpr char kSnapshotFolder[] = "/mtd_rwcommon/moip/engines/Zelto/snapshot";
inline constexpr char kAvatarFolder[] = "/mtd_rwcommon/moip/engines/Zelto/avatar";
inline constexpr char kProtocolSocket[] = "/dtv/socket";
inline constexpr char kChannelKeyFile[] = "/tmp/shmipc2_conn";
inline constexpr char kWidgetFolder[] = "/mtd_down/widgets/normal/100000000042";
inline constexpr char kWidgetImageFolder[] = "/mtd_down/widgets/normal/100000000042_img";
inline constexpr char kBackupFolder[] = "/mtd_down/moip/engines/Zelto";
inline constexpr char kBackupAccountFolder[] = "/mtd_down/moip/engines/Zelto/.Zelto";
inline constexpr char kProfilePictureCopy[] = "/mtd_rwcommon/moip/profile_temp.jpg";

// What stands before a path that the widget loads from.
inline constexpr char kFileLocation[] = "file://";

}  // namespace zelhost
