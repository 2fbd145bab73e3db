#include "zelhost/commands/CommandTable.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

const std::set<std::string> kNames = {
#define COMMAND(name, ...) name,
#include "zelhost/commands/Commands.def"
#undef COMMAND
};

// The hash sees a name's length and ends only; what it takes for a match must still be compared.
TEST(TheCommandTable, FindsEveryNameAndNothingThatDiffersByOneByte) {
  for (const auto& name : kNames) {
    const zelhost::Command* command = zelhost::FindCommand(name);
    ASSERT_NE(command, nullptr) << name;
    EXPECT_EQ(command->name, name);
    for (std::size_t i = 0; i < name.size(); ++i) {
      std::string longer = name;
      longer.insert(i, 1, 'x');
      std::string other = name;
      other[i] = static_cast<char>(other[i] ^ 0x20);
      for (const auto& wrong : {longer, name + 'x', name.substr(0, i) + name.substr(i + 1), other}) {
        EXPECT_EQ(zelhost::FindCommand(wrong) != nullptr, kNames.count(wrong) != 0) << wrong;
      }
    }
  }
}

TEST(TheCommandTable, FindsNothingForForeignNames) {
  for (const auto& name : {std::string(), std::string("abc"), std::string("%n%s%n%s%n%s"),
                           std::string(1 << 20, 'L'), std::string("Load\0", 5)}) {
    EXPECT_EQ(zelhost::FindCommand(name), nullptr);
  }
}

}  // namespace
