// A command as it was called.
#pragma once

#include <string>

#include "Common/DecimalText.h"

namespace zelhost {

// The command's name and its four parameters. The texts are the caller's and are not copied: they live
// as long as the command runs. One that is null counts as empty.
// Threads: none of its own.
class CommandCall {
 public:
  CommandCall(const char* name, const char* p1, const char* p2, const char* p3, const char* p4)
      : m_texts{Text(name), Text(p1), Text(p2), Text(p3), Text(p4)} {}

  const char* Name() const { return m_texts[0]; }
  // Parameter 1 to 4; never null.
  const char* Parameter(int number) const { return m_texts[number]; }
  bool IsEmpty(int number) const { return *m_texts[number] == '\0'; }
  int Int(int number) const { return zelto::DecimalValue(m_texts[number]); }
  bool Flag(int number) const { return Int(number) != 0; }

 private:
  static const char* Text(const char* text) { return text != nullptr ? text : ""; }

  const char* m_texts[5];
};

// Runs a command. The answer still holds an older one and may be the very text that a parameter points
// into: it is written once, after the last use of the parameters.
using CommandHandler = void (*)(const CommandCall& call, std::string& answer);

}  // namespace zelhost
