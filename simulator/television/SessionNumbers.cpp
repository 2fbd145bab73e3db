// The console's words about telephone numbers: the picker of countries, and how a number is dialled.
#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "dial/DialHelper.h"
#include "simulator/television/Lines.h"
#include "simulator/television/Session.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr char kLoaded[] = "1";  // of the states of "GetZeltoState"
constexpr char kReader[] = "en";
constexpr char kNoArea[] = "-";
constexpr std::size_t kCountriesOnAPage = 20;
constexpr std::size_t kLabel = 16;  // columns

bool IsNumber(const std::string& text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

std::string Labelled(const char* label, const std::string& text) {
  return Column(label, kLabel) + Readable(text);
}

std::string Joined(const ZEStringList& texts) { return std::string(texts.join(", ", false).view()); }

}  // namespace

bool Session::IsServiceLoaded() { return EngineAnswer({"GetZeltoState"}) == kLoaded; }

void Session::ListCountries(const Words& words) {
  m_screen.Command(m_line);
  const std::string language = words.size() > 1 ? words[1] : kReader;
  const std::size_t shown =
      words.size() > 2 ? std::strtoul(words[2].c_str(), nullptr, 10) : kCountriesOnAPage;
  const std::vector<Record> countries =
      ReadRecords(EngineAnswer({"GetCountryList", language}), kCountryFields);
  Words lines;
  for (std::size_t i = 0; i < std::min(shown, countries.size()); ++i)
    lines.push_back(CountryLine(countries[i]));
  List(lines);
  m_screen.Line("  of " + std::to_string(countries.size()) + " countries");
}

std::string Session::CallingCodeOf(const std::string& country) {
  const std::string code = country.substr(country.compare(0, 1, "+") == 0 ? 1 : 0);
  if (IsNumber(code)) return code;
  if (!IsServiceLoaded()) return {};
  const std::string prefix = EngineAnswer({"GetISOCountryPrefix", country});
  return prefix == "0" ? std::string() : prefix;
}

Session::Words Session::Origin(const std::string& number) {
  if (!IsServiceLoaded()) return {Labelled("country", "the service is not loaded")};
  const std::string country = EngineAnswer({"FindCountryCodeByNumber", number});
  const std::string name =
      country.empty() ? "not known" : EngineAnswer({"GetISOCountryName", country, kReader});
  return {Labelled("country", country.empty() ? name : name + " (" + country + ')'),
          Labelled("national part", EngineAnswer({"GetLocalNumber", number}))};
}

void Session::Dial(const Words& words) {
  m_screen.Command(m_line);
  if (words.size() < 4) return Hold(false, "dial takes a country, an area code (or \"-\") and a number");
  const std::string callingCode = CallingCodeOf(words[1]);
  if (callingCode.empty())
    return Hold(false, "no calling code for " + words[1] +
                           (IsServiceLoaded() ? "" : ": the service, which knows, is not loaded"));
  DialHelper helper(callingCode.c_str(), words[2] == kNoArea ? "" : words[2].c_str());
  const ZEString dialled = helper.getZeltoOutDialString(words[3].c_str());
  if (dialled.isNull()) return Hold(false, "no dial rules for calling code " + callingCode);
  const std::string international(dialled.view());
  Words lines = {Labelled("international", international),
                 Labelled("local", Joined(helper.getPSTNDialString(dialled)))};
  for (std::string& line : Origin(international)) lines.push_back(std::move(line));
  List(lines);
}

}  // namespace television
