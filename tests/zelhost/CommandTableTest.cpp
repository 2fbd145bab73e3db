#include "zelhost/commands/CommandTable.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

const char* const kRows[] = {
#define COMMAND(name, ...) name,
#include "zelhost/commands/Commands.def"
#undef COMMAND
};

const std::set<std::string> kNames(std::begin(kRows), std::end(kRows));

TEST(TheCommandTable, HoldsExactly228DifferentNames) {
  EXPECT_EQ(std::size(kRows), 228u);
  EXPECT_EQ(kNames.size(), 228u);
}

TEST(TheCommandTable, FindsEveryNameAsItself) {
  for (const auto& name : kNames) {
    const zelhost::Command* command = zelhost::FindCommand(name);
    ASSERT_NE(command, nullptr) << name;
    EXPECT_EQ(command->name, name);
    EXPECT_NE(command->run, nullptr) << name;
  }
}

// The hash sees a name's length and ends only; what it takes for a match must still be compared.
TEST(TheCommandTable, FindsNothingThatDiffersByOneByte) {
  for (const auto& name : kNames) {
    for (std::size_t i = 0; i <= name.size(); ++i) {
      std::string longer = name;
      longer.insert(i, 1, 'x');
      std::string shorter = name.substr(0, i) + (i < name.size() ? name.substr(i + 1) : "");
      std::string other = name;
      if (i < name.size()) other[i] = static_cast<char>(other[i] ^ 0x20);
      for (const auto& wrong : {longer, shorter, other}) {
        if (kNames.count(wrong) != 0) continue;
        EXPECT_EQ(zelhost::FindCommand(wrong), nullptr) << wrong;
      }
    }
  }
}

TEST(TheCommandTable, FindsNothingForForeignNames) {
  EXPECT_EQ(zelhost::FindCommand(""), nullptr);
  EXPECT_EQ(zelhost::FindCommand("abc"), nullptr);
  EXPECT_EQ(zelhost::FindCommand("%n%s%n%s%n%s"), nullptr);
  EXPECT_EQ(zelhost::FindCommand(std::string(1 << 20, 'L')), nullptr);
  EXPECT_EQ(zelhost::FindCommand(std::string("Load\0", 5)), nullptr);
}

}  // namespace
