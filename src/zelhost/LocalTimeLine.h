// A time as it stands in the widget's lists.
#pragma once

#include <string_view>

#include "Common/LocalTime.h"

namespace zelhost {

// The first line of what the television calls that time, in its twelve-hour format. Valid as long as the
// object. Threads: as ConvertToLocalTime12.
class LocalTimeLine {
 public:
  // Seconds since the epoch.
  explicit LocalTimeLine(unsigned long time) { zelto::ConvertToLocalTime12(time, m_text, 0); }

  std::string_view view() const {
    const std::string_view text = m_text;
    return text.substr(0, text.find('\n'));
  }

 private:
  char m_text[zelto::kLocalTimeSize + 1] = {};  // a time that fills its part still ends
};

}  // namespace zelhost
