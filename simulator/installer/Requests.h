// The installer's command language.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/installer/Installation.h"

namespace installer {

// Threads: none.
class Requests {
 public:
  // The installation outlives this object.
  explicit Requests(Installation& installation) : m_installation(installation) {}

  // The reply, whatever the text is; empty for the request to end, which has none.
  std::optional<std::string> Answer(std::string_view text, std::int64_t now);

  // "WORD" or "WORD=CODE": the next request of that name fails with that code; of DOWNLOADING and INSTALLING
  // the next copy breaks off halfway. Null, or what is wrong with it.
  const Error* FailNext(const std::string& order);

 private:
  struct Row;
  static const Row kRows[];

  const Error* Check(const std::string& none, std::int64_t now);
  const Error* Download(const std::string& url, std::int64_t now);
  const Error* DownloadFromFile(const std::string& path, std::int64_t now);
  const Error* Install(const std::string& none, std::int64_t now);
  const Error* Set(const std::string& assignment, std::int64_t now);
  const Error* TellFailure(const std::string& none, std::int64_t now);
  const Error* Fail(const std::string& order, std::int64_t now);
  std::string StateWords() const;

  Installation& m_installation;
  std::map<std::string, Error> m_failures;  // by the request's name
};

}  // namespace installer
