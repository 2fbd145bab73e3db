// The library's two entry points.
#include "Common/IMoIPEngine.h"
#include "Common/ZeltoManager.h"

IMoIPEngine* engine_create() noexcept { return CZeltoManager::Create(); }

void engine_destroy(IMoIPEngine* engine) noexcept { CZeltoManager::Destroy(engine); }
