// How the service host speaks to the television: controls, questions, numbers as texts.
// Threads: any; see CZeltoManager for the locks that a caller must not hold.
#pragma once

#include <charconv>
#include <string>

#include "Common/DecimalText.h"
#include "Common/ZeltoManager.h"

namespace zelhost {

// A number as the text that the television is given; the text lives as long as the object.
class Decimal {
 public:
  explicit Decimal(int value) { *std::to_chars(m_digits, m_digits + sizeof m_digits - 1, value).ptr = '\0'; }
  const char* Text() const { return m_digits; }

 private:
  char m_digits[12];
};

// Answers what the television answers; empty without one.
inline std::string Tell(const char* control, const char* p1 = nullptr, const char* p2 = nullptr,
                        const char* p3 = nullptr, const char* p4 = nullptr) {
  return CZeltoManager::CallCommonControl(control, p1, p2, p3, p4);
}

// The number that it answers a question with; 0 without one.
inline int AskNumber(const char* question, const char* p1 = nullptr) {
  return zelto::DecimalValue(Tell(question, p1).c_str());
}

// Whether it answers a question with 1 or more.
inline bool HostSaysYes(const char* question) { return AskNumber(question) >= 1; }

}  // namespace zelhost
