// The texts that the engine shows on the television itself, in every language. The translators' files are in
// Common/texts, from which the build makes the tables.
#pragma once

#include <cstddef>

// Numbers of the texts; Common/texts/Eng.txt has them in English.
enum ZeltoText : int {
  kTextOk = 0,
  kTextVideoCall = 1,
  kTextVoiceCall = 2,
  kTextProduct = 3,
  kTextEndCall = 4,
  kTextCallEnded = 7,
  kTextSignedIn = 8,
  kTextDecline = 9,
  kTextAnswer = 10,
  kTextNewVoicemail = 11,
  kTextNewContactRequest = 12,
  kTextConferenceInvitation = 13,
  kTextGoToProduct = 14,
  kTextMissedCalls = 15,
  kTextMissedCall = 16,
  kTextCalling = 17,
  kTextIsOnline = 18,
};

inline constexpr int kZeltoTextCount = 19;
inline constexpr int kZeltoLanguageCount = 71;

// A language and its table of kZeltoTextCount texts: NUL-terminated UTF-16 that lives as long as the process.
struct ZeltoLanguage {
  int id;            // the television's number of it
  const char* code;  // the television's name of it
  const char* tag;   // BCP 47
  const unsigned short** texts;
};

// In the order in which they are registered.
extern const ZeltoLanguage kZeltoLanguages[kZeltoLanguageCount];

namespace zelto {

// A text's units as the tables hold them.
template <std::size_t kSize>
struct TextUnits {
  unsigned short units[kSize];
};

template <std::size_t kSize>
constexpr TextUnits<kSize> Units(const char16_t (&text)[kSize]) {
  TextUnits<kSize> result{};
  for (std::size_t i = 0; i < kSize; ++i) result.units[i] = text[i];
  return result;
}

}  // namespace zelto
