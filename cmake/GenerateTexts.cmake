# Turns the translators' files into a C++ source: cmake -DTEXTS=folder -DOUTPUT=file -DCOUNT=n -P this.
# Whatever a translator may get wrong about the form is said with file and line.
cmake_minimum_required(VERSION 3.25)

# The lines of a file that are no remarks; semicolons in them survive as they are.
function(read_rows file result)
  file(READ "${file}" content)
  if(content MATCHES "[][]")
    message(FATAL_ERROR "${file}: square brackets, which are of no use in a list of lines")
  endif()
  string(REPLACE ";" "\\;" content "${content}")
  string(REGEX REPLACE "\r?\n" ";" lines "${content}")
  set(rows "")
  foreach(line IN LISTS lines)
    if(NOT line STREQUAL "" AND NOT line MATCHES "^#")
      string(REPLACE ";" "\\;" line "${line}")
      list(APPEND rows "${line}")
    endif()
  endforeach()
  set(${result} "${rows}" PARENT_SCOPE)
endfunction()

# Adds the table of one file to SOURCE.
function(add_table name)
  set(file "${TEXTS}/${name}.txt")
  read_rows("${file}" rows)
  set(expected 0)
  set(pointers "")
  foreach(row IN LISTS rows)
    if(NOT row MATCHES "^ *([0-9]+)  (.+)$" OR NOT CMAKE_MATCH_1 EQUAL expected)
      message(FATAL_ERROR "${file}: text number ${expected} is missing, not in its place or empty: \"${row}\"")
    endif()
    string(REPLACE "\\" "\\\\" text "${CMAKE_MATCH_2}")
    string(REPLACE "\"" "\\\"" text "${text}")
    string(APPEND SOURCE "constexpr auto k${name}${expected} = Units(u\"${text}\");\n")
    string(APPEND pointers " k${name}${expected}.units,")
    math(EXPR expected "${expected} + 1")
  endforeach()
  if(NOT expected EQUAL COUNT)
    message(FATAL_ERROR "${file}: ${expected} texts instead of ${COUNT}")
  endif()
  string(APPEND TABLES "const unsigned short* g_ZeltoWString${name}[] = {${pointers}};\n")
  set(SOURCE "${SOURCE}" PARENT_SCOPE)
  set(TABLES "${TABLES}" PARENT_SCOPE)
endfunction()

set(SOURCE "// Made by cmake/GenerateTexts.cmake from src/Common/texts.
#include \"Common/ZeltoTexts.h\"

namespace {

using zelto::Units;

")
set(TABLES "")
set(LANGUAGES "")
read_rows("${TEXTS}/languages.txt" languages)
set(made "")
foreach(language IN LISTS languages)
  if(NOT language MATCHES "^([0-9]+) +([A-Za-z]+) +([A-Za-z]+) +([A-Za-z0-9-]+) +(.+)$")
    message(FATAL_ERROR "${TEXTS}/languages.txt: no language: \"${language}\"")
  endif()
  set(id ${CMAKE_MATCH_1})
  set(code ${CMAKE_MATCH_2})
  set(texts ${CMAKE_MATCH_3})
  set(tag ${CMAKE_MATCH_4})
  if(NOT texts IN_LIST made)
    list(APPEND made ${texts})
    add_table(${texts})
  endif()
  if(NOT code STREQUAL texts)
    string(APPEND ALIASES "const unsigned short* g_ZeltoWString${code}[] = {COPY_OF_${texts}};\n")
  endif()
  string(APPEND LANGUAGES "    {${id}, \"${code}\", \"${tag}\", g_ZeltoWString${code}},\n")
endforeach()
# A language that reads another's texts has a table of its own with the same texts.
foreach(name IN LISTS made)
  if(ALIASES MATCHES "COPY_OF_${name}}")
    string(REGEX MATCH "g_ZeltoWString${name}\\[\\] = {([^}]*)}" unused "${TABLES}")
    string(REPLACE "COPY_OF_${name}" "${CMAKE_MATCH_1}" ALIASES "${ALIASES}")
  endif()
endforeach()
if(ALIASES MATCHES "COPY_OF_")
  message(FATAL_ERROR "${TEXTS}/languages.txt: a language reads texts that no other language has")
endif()
file(WRITE "${OUTPUT}.new" "${SOURCE}
}  // namespace

${TABLES}${ALIASES}
const ZeltoLanguage kZeltoLanguages[kZeltoLanguageCount] = {
${LANGUAGES}};
")
file(RENAME "${OUTPUT}.new" "${OUTPUT}")
