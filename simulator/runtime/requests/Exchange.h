// One request while it is being served.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "apiwrapper/ZEProtocol.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// What the handlers of requests see: arguments by their keys, results by their keys. An argument that is
// missing reads as empty, 0, false or -1.
// Threads: none of its own.
class Exchange {
 public:
  // The reply's text ends where the results begin.
  Exchange(const Request& request, const ZEMethod& method, const ZEClass& type, Object* object,
           std::string& reply);

  const Request& TheRequest() const { return m_request; }
  const ZEMethod& Method() const { return m_method; }
  // The class whose token the request carries.
  const ZEClass& Class() const { return m_class; }
  // The object of a method on an object; only those may ask.
  Object& Target() const { return *m_object; }

  std::string Text(const char* key) const;
  int Number(const char* key) const;
  unsigned Id(const char* key) const;
  bool Flag(const char* key) const { return Number(key) != 0; }
  // The number of an enumerator's token; -1 for one that the argument's table does not know.
  int Enumerator(const char* key) const;
  // The ids of a list of objects.
  std::vector<unsigned> Ids(const char* key) const;
  std::vector<std::string> Texts(const char* key) const;

  void Answer(const char* key, std::string_view text);
  void Answer(const char* key, const char* text) { Answer(key, std::string_view(text)); }
  // As a token when the method's result is an enumerator.
  void Answer(const char* key, long long number);
  void AnswerObject(const char* key, const Object* object) {
    Answer(key, object == nullptr ? 0LL : object->id);
  }
  void AnswerObjects(const char* key, const std::vector<unsigned>& ids);
  void AnswerTexts(const char* key, const std::vector<std::string>& texts);
  void AnswerBinary(const char* key, std::string_view escaped) { m_writer.Binary(key, escaped); }
  PairWriter& Writer() { return m_writer; }
  // Text of the reply itself, for the few whose results are no pairs.
  std::string& Reply() { return m_reply; }

  // Turns the answer into an error with these words.
  void Fail(std::string words) { m_error = std::move(words); }
  const std::string& Error() const { return m_error; }

 private:
  const Request& m_request;
  const ZEMethod& m_method;
  const ZEClass& m_class;
  Object* m_object;
  std::string& m_reply;
  PairWriter m_writer;
  std::string m_error;
};

}  // namespace simulator
