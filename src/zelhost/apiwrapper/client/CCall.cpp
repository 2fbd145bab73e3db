#include "zelhost/apiwrapper/client/CCall.h"

#include "zelhost/ZelhostCallManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"

CCall::~CCall() {
  if (CZelto* root = client::RootOf(*this)) root->m_calls.Forget(this);
  if (CZelhostCallManager::m_pCall == this) CZelhostCallManager::GetInstance()->SetCallMembers(nullptr);
}
