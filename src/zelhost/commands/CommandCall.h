// A command as it was called, and how numbers are read from its texts.
#pragma once

#include <string>

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
  // The parameter read as a decimal number by the rules of strtol: 0 when it is none, the nearest int
  // when it is too large for one.
  int Int(int number) const;
  bool Flag(int number) const { return Int(number) != 0; }

 private:
  static const char* Text(const char* text) { return text != nullptr ? text : ""; }

  const char* m_texts[5];
};

// Reads a text as CommandCall::Int does.
int ToInt(const char* text);
// The nearest int.
int NearestInt(long long value);

// Runs a command. The answer still holds an older one and may be the very text that a parameter points
// into: it is written once, after the last use of the parameters.
using CommandHandler = void (*)(const CommandCall& call, std::string& answer);

}  // namespace zelhost
