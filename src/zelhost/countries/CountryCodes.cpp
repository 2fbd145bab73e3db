#include "zelhost/countries/CountryCodes.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/countries/AreaCodes.h"
#include "zelhost/countries/CountryCodeInfo.h"

namespace {

using zelhost::ServiceHostLock;

constexpr char kUnitedStates[] = "us";
constexpr char kCanada[] = "ca";
constexpr char kRussia[] = "ru";
constexpr char kKazakhstan[] = "kz";

// Calling codes that one digit tells, and that several countries share.
constexpr std::string_view kNorthAmerica = "1";
constexpr std::string_view kRussiaAndKazakhstan = "7";

constexpr std::size_t kAreaDigits = 3;

// Null stands for no text, which is printed as an empty one.
const char* Printed(const char* text) { return text == nullptr ? "" : text; }

bool IsGiven(const char* number) {
  if (number == nullptr) {
    ZELTO_WARNING(" Call Number Parameter is Null !! ");
    return false;
  }
  if (*number == '\0') {
    ZELTO_WARNING(" Call Number is Null !! ");
    return false;
  }
  return true;
}

bool IsInternational(const char* number) {
  if (*number == '+') return true;
  ZELTO_WARNING("This Call Number is abnormal!!! there is no '+' character!!! ");
  return false;
}

// The calling code that the number begins with after its "+": the longest that the runtime knows, empty for
// none. A part of the number.
std::string_view CallingCodeOf(std::string_view number) {
  const std::string_view digits = number.substr(1);
  std::size_t longest = 0;
  const ZEStringDict prefixes = g_lpZelto->GetISOCountryPrefixDict();
  for (unsigned i = 0; i < prefixes.size(); ++i) {
    const ZEString prefix = prefixes[i];
    if (prefix.length() > longest && digits.substr(0, prefix.length()) == prefix.view())
      longest = prefix.length();
  }
  return digits.substr(0, longest);
}

// Of a calling code of several digits: the first of its countries.
std::string CountryOfCallingCode(std::string_view callingCode) {
  ZELTO_DEBUG("There is a Country Code in list  (count = %d) !!!", static_cast<int>(callingCode.size()));
  const ZEString prefix(callingCode);
  const ZEStringList countries = g_lpZelto->GetISOCountryCodeByPrefix(prefix.toInt());
  if (countries.isEmpty())
    ZELTO_FATAL("cannot find country code by prefix = %s\n", static_cast<const char*>(prefix));
  return std::string(countries[0].view());
}

// The rest: what follows the calling code.
std::string NorthAmericanCountry(std::string_view rest) {
  if (rest.size() < kAreaDigits) return {};
  const int area = ZEString(rest.substr(0, kAreaDigits)).toInt();
  ZELTO_DEBUG("nAreaNumber = %d ", area);
  if (zelhost::IsAreaOf(zelhost::kAreasOfUnitedStates, area)) return kUnitedStates;
  return zelhost::IsAreaOf(zelhost::kAreasOfCanada, area) ? kCanada : "";
}

std::string RussiaOrKazakhstan(std::string_view rest) {
  if (rest.empty()) return {};
  return rest.front() == '3' ? kKazakhstan : rest.front() == '4' ? kRussia : "";
}

std::string CountryOf(std::string_view number) {
  const std::string_view callingCode = CallingCodeOf(number);
  const std::string_view rest = number.substr(1 + callingCode.size());
  if (callingCode.size() > 1) return CountryOfCallingCode(callingCode);
  if (callingCode == kNorthAmerica) return NorthAmericanCountry(rest);
  if (callingCode == kRussiaAndKazakhstan) return RussiaOrKazakhstan(rest);
  return {};
}

std::string_view LocalPart(std::string_view number) {
  const std::string_view callingCode = CallingCodeOf(number);
  const bool dropped = callingCode.size() > 1 || callingCode == kNorthAmerica;
  return number.substr(dropped ? 1 + callingCode.size() : 1);
}

// The names by ISO code. As a map of its own: looked up once per country, the runtime's dictionary, which is
// made for a message's few keys, would take quadratic time over a table of any size.
std::unordered_map<std::string, std::string> NamesOf(const ZEStringDict& names) {
  std::unordered_map<std::string, std::string> byCode;
  byCode.reserve(names.size());
  for (unsigned i = 0; i < names.size(); ++i) byCode.emplace(names.keyAt(i).view(), names[i].view());
  return byCode;
}

std::vector<CCountryCodeInfo> ListCountries(const ZEStringDict& prefixes, const ZEStringDict& names) {
  const std::unordered_map<std::string, std::string> byCode = NamesOf(names);
  std::vector<CCountryCodeInfo> countries;
  countries.reserve(prefixes.size());
  for (unsigned i = 0; i < prefixes.size(); ++i) {
    const ZEString callingCode = prefixes[i];
    if (callingCode.isEmpty()) continue;
    const std::string isoCode(prefixes.keyAt(i).view());
    const auto name = byCode.find(isoCode);
    countries.emplace_back(name == byCode.end() ? std::string_view() : name->second, callingCode.view(),
                           isoCode);
  }
  std::sort(countries.begin(), countries.end(), [](const CCountryCodeInfo& a, const CCountryCodeInfo& b) {
    return CCountryCodeInfo::Compare(&a, &b);
  });
  return countries;
}

}  // namespace

const char* CountryCodes::Keep(std::string_view answer) {
  // By way of a copy, since the answer can be part of the text that it replaces.
  m_strResult = std::string(answer);
  return m_strResult.c_str();
}

const char* CountryCodes::GetCountryList(const char* language) {
  ServiceHostLock lock("GetCountryList");
  if (g_lpZelto == nullptr) return nullptr;
  const ZEStringDict prefixes = g_lpZelto->GetISOCountryPrefixDict();
  const ZEStringDict names =
      language == nullptr ? ZEStringDict() : g_lpZelto->GetISOCountryNameDict(language);
  ZELTO_DEBUG("strDict_country.size() = %d, strDict_prefix.size()=%d\n", static_cast<int>(names.size()),
              static_cast<int>(prefixes.size()));
  const std::vector<CCountryCodeInfo> countries = ListCountries(prefixes, names);
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  for (const CCountryCodeInfo& country : countries)
    writer.Field(country.CountryName()).Field(country.CallingCode()).Field(country.ISOCode());
  ZELTO_DEBUG("CountryCodeList[%d] = %s\n", static_cast<int>(countries.size()), m_strResult.c_str());
  return m_strResult.c_str();
}

int CountryCodes::GetISOCountryPrefix(const char* countryCode) {
  ServiceHostLock lock("GetISOCountryPrefix");
  if (g_lpZelto == nullptr) return 0;
  const int prefix = g_lpZelto->GetISOCountryPrefix(countryCode);
  ZELTO_DEBUG("%s: countryCode[%s], prefix=%d\n", "GetISOCountryPrefix", Printed(countryCode), prefix);
  return prefix;
}

const char* CountryCodes::GetISOCountryName(const char* countryCode, const char* language) {
  ServiceHostLock lock("GetISOCountryName");
  if (g_lpZelto == nullptr) return nullptr;
  return Keep(g_lpZelto->GetISOCountryName(countryCode, language).view());
}

const char* CountryCodes::FindCountryCodeByNumber(const char* number) {
  ServiceHostLock lock("FindCountryCodeByNumber");
  if (g_lpZelto == nullptr || !IsGiven(number)) return nullptr;
  ZELTO_DEBUG("=======> CallNumber  :  %s   <====== \n", number);
  if (!IsInternational(number)) return nullptr;
  const char* country = Keep(CountryOf(number));
  ZELTO_DEBUG("country code = %s\n", country);
  return country;
}

const char* CountryCodes::GetLocalNumber(const char* number) {
  ServiceHostLock lock("GetLocalNumber");
  if (g_lpZelto == nullptr || !IsGiven(number)) return nullptr;
  if (!IsInternational(number)) return Keep(number);
  const char* local = Keep(LocalPart(number));
  ZELTO_DEBUG("local number = %s\n", local);
  return local;
}
