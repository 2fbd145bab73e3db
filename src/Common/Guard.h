// The edge that no exception crosses.
#pragma once

#include <exception>

#include "Common/Log.h"

namespace zelto {

// Answers what the body answers. What throws inside counts as a failure: a line in the log, and the
// answer's zero value. `operation` names the body in that line.
template <class Body>
auto Guard(const char* operation, Body body) noexcept -> decltype(body()) {
  try {
    return body();
  } catch (const std::exception& failure) {
    ZELTO_FATAL("%s failed: %s\n", operation, failure.what());
  } catch (...) {
    ZELTO_FATAL("%s failed\n", operation);
  }
  return decltype(body())();
}

}  // namespace zelto
