// The course of an installation: what has been downloaded, checked and installed, and what is going on.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "simulator/installer/Errors.h"
#include "simulator/installer/FileCopy.h"

namespace installer {

enum class State { Ready, Connecting, Downloading, DownloadFinished, Installing, InstallFinished };
constexpr std::size_t kStates = 6;

// Times are in milliseconds of a clock that does not go back; work is done in Work() only. Requests answer
// null when they were accepted, else why not, and change nothing then. One that has to be another time:
// kBusy while connecting, downloading or installing.
// Threads: none.
class Installation {
 public:
  // Everything is written below that folder. 0 bytes a second: as fast as it goes.
  Installation(std::string folder, std::int64_t bytesPerSecond);

  // Only "file:///..." is ever reached; for anything else the connection fails in time.
  const Error* Download(const std::string& url, std::int64_t now);
  const Error* DownloadFromFile(const std::string& path, std::int64_t now);
  // Compares what was downloaded with the checksum that came with it.
  const Error* Check();
  // Of a downloaded and checked file.
  const Error* Install(std::int64_t now);

  const Error* SetConnectTimeout(const std::string& seconds);
  // Below the folder, whatever it begins with; it must not lead out of it.
  const Error* SetInstallPath(const std::string& path);

  // The next copy of that state breaks off halfway.
  void BreakNext(State state, const Error& error) { m_breaks[state] = error; }

  // Does what is due.
  void Work(std::int64_t now);
  // How long Work() need not be called; -1: until the next request.
  std::int64_t UntilNext(std::int64_t now) const;

  State CurrentState() const { return m_state; }
  // Why the last download or installation broke off, until the next one begins; the state is what it was
  // before then.
  const std::optional<Error>& Failure() const { return m_failure; }
  // In bytes, of the copy that is going on or has just been finished.
  std::int64_t Done() const { return m_done; }
  std::int64_t Total() const { return m_total; }
  std::int64_t BytesPerSecond() const { return m_speed; }

 private:
  bool IsBusy() const;
  const Error* StartDownload(std::int64_t now);
  const Error* StartCopy(State state, const std::string& from, const std::string& to, std::int64_t now);
  void Copy(std::int64_t now);
  // What is to break off the copy at that place.
  std::optional<Error> TakeBreak(std::int64_t place);
  void Finish();
  void Fail(const Error& error);
  std::string Downloaded() const;

  const std::string m_folder;
  const std::int64_t m_rate;
  std::int64_t m_connectTimeout;
  std::string m_installPath = "/";

  State m_state = State::Ready;
  State m_resting = State::Ready;  // the last one in which nothing went on
  std::optional<Error> m_failure;
  std::map<State, Error> m_breaks;

  std::string m_source;  // of the latest download
  std::string m_name;    // of the file that has been downloaded, empty: none
  std::optional<std::uint32_t> m_expected;
  bool m_checked = false;

  bool m_reachable = false;  // while connecting
  std::int64_t m_connected = 0;
  std::optional<FileCopy> m_copy;
  std::int64_t m_begun = 0;
  std::int64_t m_done = 0;
  std::int64_t m_total = 0;
  std::int64_t m_speed = 0;
};

}  // namespace installer
