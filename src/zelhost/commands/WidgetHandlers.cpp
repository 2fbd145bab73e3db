// Commands about the widget itself.
#include <unistd.h>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/commands/Handlers.h"

namespace zelhost {

void ImgFolderExist(const CommandCall&, std::string& answer) {
  const bool exists = zelto::System().Access(zelto::DevicePath(kWidgetImageFolder).c_str(), F_OK) == 0;
  if (exists) ZELTO_DEBUG("widget is in %s\n", kWidgetImageFolder);
  Answer(answer, exists);
}

void CheckMissedCall(const CommandCall&, std::string& answer) {
  Answer(answer, CZeltoManager::RunWidget("MissedCallHistory"));
}

void OSDTimerExpired(const CommandCall& call, std::string& answer) {
  const int type =
      zelto::NearestInt(static_cast<long long>(CZeltoManager::WIDGET_OSD_TIMER_EXPIRED) + call.Int(1));
  CZeltoManager::SendEvent(type, 0);
  answer.clear();
}

void SetDebugLevel(const CommandCall& call, std::string& answer) {
  zelto::g_debugLevel = call.Int(1);
  AnswerDone(answer);
}

void StartWidget(const CommandCall& call, std::string& answer) {
  Host(call, answer);
  CZeltoManager::SetWidgetStarted(true);
}

void GetRunWidgetParam(const CommandCall&, std::string& answer) {
  Answer(answer, CZeltoManager::GetRunWidgetParam());
}

}  // namespace zelhost
