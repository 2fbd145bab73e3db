#pragma once

#include <string_view>
#include <vector>

namespace television {

// A language that the television offers.
struct Language {
  const char* number;  // what the engine is told
  const char* code;    // the television's name of it
  const char* tag;     // BCP 47
  const char* name;    // in English
};

// All of them, in the engine's order.
const std::vector<Language>& Languages();

// By name, code or number, in capital or small letters; null when the television does not offer it.
const Language* FindLanguage(std::string_view text);

}  // namespace television
