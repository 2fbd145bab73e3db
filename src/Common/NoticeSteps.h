// The small functions that the notice table is made of.
#pragma once

#include <string>

#include "Common/ZeltoResourceManager.h"

namespace zelto::notices {

// What a text is written from.
struct Source {
  CZeltoResourceManager& texts;  // in the television's language
  int text;                      // number of the text
  int param;                     // of the event
};

// --- Conditions. They ask managers under the service-host mutex, the host after it has been released.

bool Always();
bool IsCameraReady();
// Whether one call was missed, not several.
bool HasOneMissed();

// --- Writers of titles and descriptions, in UTF-16. False: there is nothing to say, so nothing is shown. A
// name or number that is not to be had is left empty.

using Write = bool (*)(const Source& source, std::u16string& out);

bool Product(const Source& source, std::u16string& out);
bool Plain(const Source& source, std::u16string& out);
bool NamingCaller(const Source& source, std::u16string& out);
bool NamingOnlined(const Source& source, std::u16string& out);
bool NamingMissed(const Source& source, std::u16string& out);
bool CountingMissed(const Source& source, std::u16string& out);
// The caller's name alone, shortened when it is long.
bool CallerName(const Source& source, std::u16string& out);
// Hours, minutes and seconds of the event's parameter.
bool Duration(const Source& source, std::u16string& out);

}  // namespace zelto::notices
