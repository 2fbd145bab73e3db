#pragma once

#include <memory>
#include <string>

#include "Common/IMoIPEngine.h"

namespace television {

// The engine's shared library, loaded as a television loads it, and the one engine in it.
// Threads: one thread creates and destroys; the engine itself may be used from any.
class EngineLibrary {
 public:
  // Loads the library and creates the engine; an empty path takes the engine that is linked into this
  // program. Throws std::runtime_error with the loader's own words.
  explicit EngineLibrary(const std::string& path);
  ~EngineLibrary();
  EngineLibrary(const EngineLibrary&) = delete;
  EngineLibrary& operator=(const EngineLibrary&) = delete;

  IMoIPEngine& Engine() { return *m_engine; }
  // Ends the engine and makes another one, as a television does that was switched off and on.
  void Restart();

 private:
  void Create();
  void Destroy();

  using CreateFunction = IMoIPEngine* (*)();
  using DestroyFunction = void (*)(IMoIPEngine*);

  std::unique_ptr<void, int (*)(void*)> m_library;
  CreateFunction m_create = nullptr;
  DestroyFunction m_destroy = nullptr;
  IMoIPEngine* m_engine = nullptr;
};

}  // namespace television
