// A system that has no thread left.
#pragma once

#include <cerrno>

#include "Common/Platform.h"

namespace test {

class NoThreads : public zelto::Platform {
 public:
  NoThreads() : m_before(zelto::SetSystem(this)) {}
  ~NoThreads() override { zelto::SetSystem(m_before); }
  int CreateThread(pthread_t*, void* (*)(void*), void*) override { return EAGAIN; }

 private:
  zelto::Platform* m_before;
};

}  // namespace test
