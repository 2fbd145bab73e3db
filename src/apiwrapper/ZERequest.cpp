#include "apiwrapper/ZERequest.h"

#include <cassert>

#include "apiwrapper/Zelto.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/Words.h"

ZERequest ZERequest::WithPairs(const ZEMethod& method, const ZEStringDict& pairs) {
  ZERequest request(method);
  request.m_arguments = pairs;
  return request;
}

ZERequest& ZERequest::withTerms(const ZEStringList& terms) {
  ZEStringList rest = terms;
  while (rest.size() > 0) {
    m_terms += " ";
    m_terms += ZEKey::SearchTerm;
    m_terms += "=\"";
    m_terms += rest.peek();
    m_terms += "\"";
  }
  return *this;
}

void ZERequest::send(ZEObject* object) const {
  assert(m_method.target == ZETarget::Object);
  object->send(m_method.token, m_arguments, true);
}

void ZERequest::send(Zelto* root) const {
  ZEString text(ZEWord::Request);
  text += " ";
  text += rootText();
  root->send(text);
}

ZEReply ZERequest::ask(ZEObject* object) const {
  assert(m_method.target == ZETarget::Object);
  return ZEReply(m_method, object->getRoot(), object->sendWithReply(m_method.token, m_arguments, true));
}

ZEReply ZERequest::ask(Zelto* root) const {
  return ZEReply(m_method, root, root->sendBlockParse(rootText()));
}

ZEString ZERequest::rootText() const {
  assert(m_method.target == ZETarget::Service);
  ZEString text(m_method.owner->token);
  text += " ";
  text += m_method.token;
  if (m_arguments.size() > 0) {
    text += " ";
    text += m_arguments.format(true);
  }
  text += m_terms;
  return text;
}

void ZERequest::add(const ZEField& field, const ZEString& value) { m_arguments.insert(field.key, value); }

void ZERequest::add(const ZEField& field, const ZEStringList& values) { add(field, values.join(",", true)); }

void ZERequest::add(const ZEField& field, const ZEPtrVector& objects) {
  ZEStringList ids;
  for (unsigned int i = 0; i < objects.size(); ++i) {
    auto* object = static_cast<ZEObject*>(objects[i]);
    if (object != nullptr) ids.append(ZEString::from(object->getOID(), 10));
  }
  add(field, ids.join(",", false));
}

void ZERequest::add(const ZEField& field, bool value) { add(field, ZEString::from(value)); }

void ZERequest::add(const ZEField& field, unsigned int value) { add(field, ZEString::from(value, 10)); }

void ZERequest::add(const ZEField& field, int value) {
  add(field, field.kind == ZEKind::Token ? ZEString(ZEProtocol::TokenOf(field.table, value))
                                         : ZEString::from(value));
}

void ZERequest::addObject(const ZEField& field, ZEObject* object) {
  add(field, object == nullptr ? 0u : object->getOID());
}
