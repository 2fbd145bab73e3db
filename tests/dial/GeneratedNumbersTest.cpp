// Numbers of every country as people type them, against the international form of another library.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "Plans.h"
#include "dial/DialHelper.h"

namespace {

struct Sample {
  const CDATA& row;
  std::string typed;
  std::string expected;
  std::string given;

  std::string trunk() const { return row.remove; }
  int localLimit() const { return row.sub_max + (trunk().empty() ? 1 : static_cast<int>(trunk().size())); }
  bool hasTrunk() const { return typed.compare(0, trunk().size(), trunk()) == 0; }
  int length() const { return static_cast<int>(typed.size()); }
  int lengthWithoutTrunk() const { return length() - (hasTrunk() ? static_cast<int>(trunk().size()) : 0); }
  bool countsAsAbroad() const { return lengthWithoutTrunk() >= localLimit() + row.area_max; }
  std::string afterCode(const std::string& rest) const { return "+" + std::string(row.idd_code) + rest; }
};

struct Group {
  const char* name;
  bool (*holds)(const Sample&);
};

bool IsItaly(const Sample& sample) { return std::string(sample.row.idd_code) == "39"; }

// The first that holds explains the difference; each also says what becomes of the number.
constexpr Group kNational[] = {
    {"its digits are as few as a local number's",
     [](const Sample& s) {
       return !IsItaly(s) && s.length() < s.localLimit() && s.given == s.afterCode(s.typed);
     }},
    {"North America's area code is the row's calling code, and the 1 before it is missing",
     [](const Sample& s) { return s.trunk() == "1" && s.length() == 10 && s.given == "+" + s.typed; }},
    {"its digits are as many as an international number's",
     [](const Sample& s) { return s.countsAsAbroad() && s.given == "+" + s.typed; }},
    {"it is dialled with another trunk prefix than the row's",
     [](const Sample& s) {
       return !IsItaly(s) && !s.countsAsAbroad() && !s.hasTrunk() && s.given == s.afterCode(s.typed);
     }},
    {"part of its trunk prefix, or a digit of its own, was taken for the row's",
     [](const Sample& s) {
       return !IsItaly(s) && s.hasTrunk() && !s.trunk().empty() &&
              s.given == s.afterCode(s.typed.substr(s.trunk().size()));
     }},
};
constexpr Group kAbroad[] = {
    {"the wait for a tone is cleaned away",
     [](const Sample& s) {
       return std::string(s.row.idd_prefix) == "8p10" &&
              s.given == "+" + s.typed.substr(0, 1) + s.typed.substr(2);
     }},
    {"a carrier was to be named, and the zero before it is taken from the way out",
     [](const Sample& s) { return std::string(s.row.iso) == "BR" && s.given == "+" + s.typed.substr(1); }},
    {"its digits are as few as a national number's",
     [](const Sample& s) {
       const std::string rest = s.hasTrunk() ? s.typed.substr(s.trunk().size()) : s.typed;
       return !s.countsAsAbroad() && (s.given == s.afterCode(rest) || s.given == s.afterCode(s.typed));
     }},
};

template <std::size_t N>
std::string Explain(const Group (&groups)[N], const Sample& sample) {
  for (const Group& group : groups) {
    if (group.holds(sample)) return group.name;
  }
  ADD_FAILURE() << sample.row.iso << ": " << sample.typed << " became " << sample.given << ", not "
                << sample.expected;
  return "unexplained";
}

std::vector<PhoneNumber> Vary(const std::string& region, std::mt19937& random) {
  std::vector<PhoneNumber> numbers;
  for (const auto type : {PhoneNumberUtil::FIXED_LINE, PhoneNumberUtil::MOBILE}) {
    PhoneNumber number;
    if (!Plans().GetExampleNumberForType(region, type, &number)) continue;
    for (int variant = 0; variant < 3; ++variant) {
      number.set_national_number(number.national_number() / 100 * 100 + random() % 100);
      numbers.push_back(number);
    }
  }
  return numbers;
}

std::string Written(const PhoneNumber& number, PhoneNumberUtil::PhoneNumberFormat format) {
  std::string text;
  Plans().Format(number, format, &text);
  if (format == PhoneNumberUtil::NATIONAL) Plans().NormalizeDigitsOnly(&text);
  return text;
}

}  // namespace

TEST(TwoThousandGeneratedNumbers, BecomeTheirInternationalFormOrDifferInAKnownWay) {
  std::mt19937 random(73);
  std::map<std::string, int> groups;
  std::set<std::string> codes;
  int total = 0;
  for (const CDATA* row = COUNTRIES; row->iso != nullptr; ++row) {
    if (!codes.insert(row->idd_code).second) continue;
    DialHelper helper(row->idd_code, "");
    for (const PhoneNumber& number : Vary(RegionOf(*row), random)) {
      const std::string expected = Written(number, PhoneNumberUtil::E164);
      const auto judge = [&](const auto& kinds, const std::string& typed) {
        const std::string given(helper.getZeltoOutDialString(typed.c_str()).view());
        ++total;
        ++groups[given == expected ? "the same" : Explain(kinds, {*row, typed, expected, given})];
      };
      judge(kNational, Written(number, PhoneNumberUtil::NATIONAL));
      judge(kAbroad, row->idd_prefix + expected.substr(1));
    }
  }
  for (const auto& [name, count] : groups) std::printf("%5d  %s\n", count, name.c_str());
  EXPECT_GE(total, 2000);
  EXPECT_GT(groups["the same"], total * 6 / 10);
  for (const Group& group : kNational) EXPECT_GT(groups[group.name], 0) << group.name;
  for (const Group& group : kAbroad) EXPECT_GT(groups[group.name], 0) << group.name;
}
