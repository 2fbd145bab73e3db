// The texts of all languages, and what puts names into them.
#include <gmock/gmock.h>
#include <unicode/uchar.h>
#include <unicode/uloc.h>
#include <unicode/uscript.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Common/ZeltoResourceManager.h"
#include "Common/ZeltoTexts.h"

namespace {

using Units = std::basic_string<unsigned short>;

constexpr int kEnglish = 12;
constexpr int kLongestText = 499;

Units Wide(const char16_t* text) {
  Units wide;
  for (; *text != 0; ++text) wide += *text;
  return wide;
}

std::multiset<Units> Placeholders(const Units& text) {
  std::multiset<Units> found;
  for (std::size_t at = 0; (at = text.find(Wide(u"<<"), at)) != Units::npos; at += 5) {
    found.insert(text.substr(at, 5));
  }
  return found;
}

// The scripts in which the language of the tag is written, by Unicode's own data.
std::set<UScriptCode> ScriptsOf(const char* tag) {
  UErrorCode error = U_ZERO_ERROR;
  char locale[ULOC_FULLNAME_CAPACITY];
  uloc_forLanguageTag(tag, locale, sizeof locale, nullptr, &error);
  UScriptCode codes[8];
  const int count = uscript_getCode(locale, codes, 8, &error);
  EXPECT_TRUE(U_SUCCESS(error)) << tag;
  return std::set<UScriptCode>(codes, codes + std::max(count, 0));
}

void SaysEverythingInItsOwnScript(CZeltoResourceManager& texts, const ZeltoLanguage& language) {
  const std::set<UScriptCode> scripts = ScriptsOf(language.tag);
  ASSERT_FALSE(scripts.empty());
  int ownLetters = 0;
  for (int id = 0; id < kZeltoTextCount; ++id) {
    SCOPED_TRACE(id);
    const Units text = texts.GetWString(language.id, id);
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(Placeholders(text), Placeholders(texts.GetWString(kEnglish, id)));
    Units letters = text;
    for (const Units& foreign : {Wide(u"<<A>>"), Wide(u"<<B>>"), Wide(u"Zelto"), Wide(u"OK")}) {
      for (std::size_t at; (at = letters.find(foreign)) != Units::npos;) letters.erase(at, foreign.size());
    }
    for (const unsigned short unit : letters) {
      ASSERT_FALSE(U16_IS_SURROGATE(unit));
      UErrorCode error = U_ZERO_ERROR;
      const UScriptCode script = uscript_getScript(unit, &error);
      if (script == USCRIPT_COMMON || script == USCRIPT_INHERITED) continue;
      EXPECT_EQ(scripts.count(script), 1u) << std::hex << unit;
      ++ownLetters;
    }
  }
  EXPECT_GT(ownLetters, 60);
  EXPECT_EQ(texts.GetWString(language.id, kTextProduct), Wide(u"Zelto"));
  EXPECT_NE(Units(texts.GetWString(language.id, kTextGoToProduct)).find(Wide(u"Zelto")), Units::npos);
}

// A name of 200 units, and another one where the text takes two.
void HasRoomForLongNames(CZeltoResourceManager& texts, const ZeltoLanguage& language) {
  const Units name(200, u'W');
  ASSERT_TRUE(texts.SetLanguage(language.id));
  for (int id = 0; id < kZeltoTextCount; ++id) {
    unsigned short out[kLongestText] = {};
    EXPECT_TRUE(texts.CombinateStrings(out, kLongestText, texts.GetWString(id), name.c_str(), name.c_str(),
                                       nullptr, nullptr))
        << id;
  }
}

}  // namespace

TEST(EveryLanguage, SaysEverythingInItsOwnScriptWithTheSamePlaceholders) {
  CZeltoResourceManager texts;
  for (const ZeltoLanguage& language : kZeltoLanguages) {
    SCOPED_TRACE(language.code);
    SaysEverythingInItsOwnScript(texts, language);
    HasRoomForLongNames(texts, language);
  }
}

TEST(TheLanguages, AreSeventyOneWithTextsOfTheirOwn) {
  CZeltoResourceManager texts;
  std::set<int> ids;
  std::map<Units, std::vector<std::string>> byTexts;
  for (const ZeltoLanguage& language : kZeltoLanguages) {
    ids.insert(language.id);
    Units all;
    for (int id = 0; id < kZeltoTextCount; ++id) all += texts.GetWString(language.id, id) + Wide(u"\n");
    byTexts[all].push_back(language.code);
  }
  EXPECT_EQ(ids.size(), 71u);
  EXPECT_EQ(*ids.rbegin(), 70);
  for (const auto& [all, codes] : byTexts) {
    const std::vector<std::string> sharing{"Bos", "Cro"};
    EXPECT_TRUE(codes.size() == 1 || codes == sharing) << codes.front();
  }
  EXPECT_EQ(byTexts.size(), 70u);
}

TEST(TheCurrentLanguage, StaysWhenAnUnknownOneIsAskedFor) {
  CZeltoResourceManager texts;
  ASSERT_TRUE(texts.SetLanguage(13));
  EXPECT_FALSE(texts.SetLanguage(71));
  EXPECT_FALSE(texts.SetLanguage(-1));
  EXPECT_EQ(CZeltoResourceManager::GetLanguage(), 13);
  EXPECT_EQ(texts.GetWString(kTextEndCall), Wide(u"End Call"));
  EXPECT_EQ(texts.GetWString(71, 0), nullptr);
  CZeltoResourceManager another;
  EXPECT_EQ(another.GetWString(kTextEndCall), Wide(u"End Call"));
  EXPECT_TRUE(texts.SetLanguage(0));
  EXPECT_DEATH(texts.GetWString(19), "Invalid stringId");
  EXPECT_DEATH(texts.GetWString(12, -1), "Invalid stringId");
}

TEST(Placeholders, TakeTheirArgumentsInTheOrderOfTheFormat) {
  CZeltoResourceManager texts;
  const Units a = Wide(u"Anna");
  const Units b = Wide(u"10:15");
  const auto combined = [&](const char16_t* format, const unsigned short* second, int size = kLongestText) {
    Units out(kLongestText, 0);
    const bool done =
        texts.CombinateStrings(out.data(), size, Wide(format).c_str(), a.c_str(), second, nullptr, nullptr);
    return done ? Units(out.c_str()) : Wide(u"does not fit");
  };
  EXPECT_EQ(combined(u"<<B>> <<A>>.", b.c_str()), Wide(u"10:15 Anna."));
  EXPECT_EQ(combined(u"<<A>>, <<B>>", nullptr), Wide(u"Anna, <<B>>"));
  EXPECT_EQ(combined(u"<<A>>", b.c_str()), Wide(u"Anna"));
  EXPECT_EQ(combined(u"<<Z>><<D>>!", b.c_str()), Wide(u"!"));
  EXPECT_EQ(combined(u"<<AB>> <<A>>", nullptr), Wide(u"<<AB>> <<A>>"));
  EXPECT_EQ(combined(u"<<A>>", nullptr, 4), Wide(u"Anna"));
  EXPECT_EQ(combined(u"<<A>>", nullptr, 3), Wide(u"does not fit"));
  EXPECT_EQ(combined((std::u16string(495, u'x') + u"<<A>>").c_str(), nullptr, 600).size(), 499u);
  EXPECT_EQ(combined((std::u16string(496, u'x') + u"<<A>>").c_str(), nullptr, 600), Wide(u"does not fit"));
}

TEST(Utf8, IsReadToItsEndAndNeverBeyond) {
  CZeltoResourceManager texts;
  const auto converted = [&](std::string utf8, int max) {
    // An exact block, so that a sanitizer sees a read behind its end.
    std::vector<unsigned char> bytes(utf8.begin(), utf8.end());
    bytes.push_back(0);
    bytes.shrink_to_fit();
    Units out(8, 0x5555);
    const int count = texts.UTF8ToUnicode(out.data(), bytes.data(), max);
    return out.substr(0, static_cast<std::size_t>(count));
  };
  const Units end(1, 0);
  EXPECT_EQ(converted("\xC3\xA9", 8), Wide(u"\u00E9") + end);
  EXPECT_EQ(converted("\xE2\x82\xAC!", 2), Wide(u"\u20AC!"));
  EXPECT_EQ(converted("a\xF0\x9F\x98\x80z", 8), Wide(u"a") + end);
  for (const char* cut : {"a\xC3", "a\xE2", "a\xE2\x82", "a\xFF", "a\x80"}) {
    EXPECT_EQ(converted(cut, 8), Wide(u"a") + end) << cut;
  }
  EXPECT_EQ(texts.UTF8ToUnicode(nullptr, nullptr, 8), 0);
  EXPECT_EQ(converted("abc", 0), Units());
}
