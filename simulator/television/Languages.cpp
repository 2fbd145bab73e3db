#include "simulator/television/Languages.h"

#include <strings.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "Common/ZeltoTexts.h"

namespace television {

namespace {

// Made by the build from the engine's table of languages.
constexpr Language kLanguages[] = {
#include "LanguageRows.inc"
};
static_assert(std::size(kLanguages) == kZeltoLanguageCount);

}  // namespace

const std::vector<Language>& Languages() {
  static const std::vector<Language> languages(std::begin(kLanguages), std::end(kLanguages));
  return languages;
}

const Language* FindLanguage(std::string_view text) {
  const std::string wanted(text);
  const auto found = std::find_if(Languages().begin(), Languages().end(), [&](const Language& language) {
    return wanted == language.number || strcasecmp(wanted.c_str(), language.code) == 0 ||
           strcasecmp(wanted.c_str(), language.name) == 0;
  });
  return found == Languages().end() ? nullptr : &*found;
}

}  // namespace television
