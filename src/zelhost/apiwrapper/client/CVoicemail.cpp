#include "zelhost/apiwrapper/client/CVoicemail.h"

#include "zelhost/apiwrapper/client/CZelto.h"

CVoicemail::~CVoicemail() {
  if (CZelto* root = client::RootOf(*this)) root->m_voicemails.Forget(this);
}
