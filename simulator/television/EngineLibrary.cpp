#include "simulator/television/EngineLibrary.h"

#include <dlfcn.h>

#include <stdexcept>

namespace television {

namespace {

void* Symbol(void* library, const char* name) {
  void* symbol = dlsym(library, name);
  if (symbol == nullptr) throw std::runtime_error(dlerror());
  return symbol;
}

}  // namespace

EngineLibrary::EngineLibrary(const std::string& path)
    : m_library(dlopen(path.empty() ? nullptr : path.c_str(), RTLD_NOW | RTLD_LOCAL), &dlclose) {
  if (m_library == nullptr) throw std::runtime_error(dlerror());
  m_create = reinterpret_cast<CreateFunction>(Symbol(m_library.get(), "engine_create"));
  m_destroy = reinterpret_cast<DestroyFunction>(Symbol(m_library.get(), "engine_destroy"));
  Create();
}

EngineLibrary::~EngineLibrary() { Destroy(); }

void EngineLibrary::Restart() {
  Destroy();
  Create();
}

void EngineLibrary::Create() {
  m_engine = m_create();
  if (m_engine == nullptr) throw std::runtime_error("engine_create answered nothing");
}

void EngineLibrary::Destroy() {
  m_destroy(m_engine);
  m_engine = nullptr;
}

}  // namespace television
