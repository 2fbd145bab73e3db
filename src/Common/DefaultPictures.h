// The engine's own pictures, for contacts that have none. Paths of the television.
#pragma once

namespace zelto {

inline constexpr char kPhonePicture[] = "/mtd_rwcommon/moip/engines/Zelto/Resource/Avatar_PSTN.png";
inline constexpr char kMalePicture[] = "/mtd_rwcommon/moip/engines/Zelto/Resource/Zelto_default_male.PNG";
inline constexpr char kFemalePicture[] = "/mtd_rwcommon/moip/engines/Zelto/Resource/Zelto_default_female.PNG";
inline constexpr char kSoundTestPicture[] = "/mtd_rwcommon/moip/engines/Zelto/Resource/Avatar_EchoTest.png";

// For a person, by the gender in the profile.
constexpr const char* PictureForGender(int gender) {
  constexpr int kFemale = 2;
  return gender == kFemale ? kFemalePicture : kMalePicture;
}

}  // namespace zelto
