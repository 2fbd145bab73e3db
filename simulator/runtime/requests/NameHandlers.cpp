// Names and codes of countries and languages, as the machine's locale data know them.
#include <unicode/locid.h>
#include <unicode/uloc.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cctype>

#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

constexpr std::size_t kCodeSize = 2;
// "zh_Hant_TW" and the like; anything longer is no language that a viewer reads.
constexpr std::size_t kLongestLocale = 16;

std::vector<std::string> CodesOf(const char* const* list) {
  std::vector<std::string> codes;
  for (; *list != nullptr; ++list) {
    std::string code = *list;
    if (code.size() != kCodeSize) continue;
    for (char& c : code) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    codes.push_back(std::move(code));
  }
  std::sort(codes.begin(), codes.end());
  return codes;
}

const std::vector<std::string>& Countries() {
  static const std::vector<std::string> kCodes = CodesOf(uloc_getISOCountries());
  return kCodes;
}

const std::vector<std::string>& Languages() {
  static const std::vector<std::string> kCodes = CodesOf(uloc_getISOLanguages());
  return kCodes;
}

// The code in the list that this text is in some case; empty for none.
std::string Known(const std::vector<std::string>& codes, std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return std::binary_search(codes.begin(), codes.end(), text) ? text : std::string();
}

// The language that names are wanted in: "pt", "pt-BR", "pt_BR"; English when it is nothing of the kind.
icu::Locale Reader(const std::string& language) {
  const bool sane = !language.empty() && language.size() <= kLongestLocale &&
                    std::all_of(language.begin(), language.end(),
                                [](unsigned char c) { return std::isalnum(c) != 0 || c == '-' || c == '_'; });
  return icu::Locale::createCanonical(sane ? language.c_str() : "en");
}

std::string CountryName(const std::string& code, const icu::Locale& reader) {
  icu::UnicodeString name;
  std::string text;
  icu::Locale("", code.c_str()).getDisplayCountry(reader, name).toUTF8String(text);
  return text;
}

std::string LanguageName(const std::string& code, const icu::Locale& reader) {
  icu::UnicodeString name;
  std::string text;
  icu::Locale(code.c_str()).getDisplayLanguage(reader, name).toUTF8String(text);
  return text;
}

using NameOf = std::string (*)(const std::string&, const icu::Locale&);

// A pair for each code, the code being its key.
void AnswerNames(Exchange& exchange, const std::vector<std::string>& codes, NameOf nameOf) {
  const icu::Locale reader = Reader(exchange.Text(ZEKey::Language));
  for (const std::string& code : codes) exchange.Writer().Text(code, nameOf(code, reader));
}

void AnswerName(Exchange& exchange, const std::string& code, NameOf nameOf) {
  const icu::Locale reader = Reader(exchange.Text(ZEKey::Language));
  exchange.Answer(ZEKey::Result, code.empty() ? std::string() : nameOf(code, reader));
}

void GetISOCountryNameDict(Session&, Exchange& exchange) { AnswerNames(exchange, Countries(), CountryName); }
void GetISOLanguageNameDict(Session&, Exchange& exchange) {
  AnswerNames(exchange, Languages(), LanguageName);
}

void GetISOCountryCodeList(Session&, Exchange& exchange) { exchange.AnswerTexts(ZEKey::Result, Countries()); }
void GetISOLanguageCodeList(Session&, Exchange& exchange) {
  exchange.AnswerTexts(ZEKey::Result, Languages());
}

void GetISOCountryName(Session&, Exchange& exchange) {
  AnswerName(exchange, Known(Countries(), exchange.Text(ZEKey::CountryCode)), CountryName);
}

void GetISOLanguageName(Session&, Exchange& exchange) {
  AnswerName(exchange, Known(Languages(), exchange.Text(ZEKey::LanguageCode)), LanguageName);
}

void IsISOCountryCode(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, !Known(Countries(), exchange.Text(ZEKey::CountryCode)).empty());
}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetISOCountryNameDict,  GetISOCountryNameDict},
    {&RootMethod::GetISOLanguageNameDict, GetISOLanguageNameDict},
    {&RootMethod::GetISOCountryCodeList,  GetISOCountryCodeList},
    {&RootMethod::GetISOLanguageCodeList, GetISOLanguageCodeList},
    {&RootMethod::IsISOCountryCode,       IsISOCountryCode},
    {&RootMethod::GetISOCountryName,      GetISOCountryName},
    {&RootMethod::GetISOLanguageName,     GetISOLanguageName},
};
// clang-format on

}  // namespace

HandlerRows NameHandlers() { return RowsOf(kRows); }

}  // namespace simulator
