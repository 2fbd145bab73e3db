// Both sides of the installer's language. The input's lines are the service's replies to all operations of
// the client, and a client's requests to the simulated service. Invariants: the client succeeds with the
// texts of success only, and its last error is what stands at the positions of the reply; the service answers
// every request once, with a success or with an error that the client reads.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "../tests/apiwrapper/MemoryTransport.h"
#include "apiwrapper/ZelInstall.h"
#include "simulator/installer/Requests.h"

namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

void CheckError(const ZelInstall& client, const std::string& reply) {
  const std::string text(reply.c_str());
  const std::size_t blank = text.find(' ');
  const bool has = blank != std::string::npos && blank + 6 <= text.size();
  const std::string code = has ? text.substr(blank + 6, 2) : "";
  const std::string rest = has && blank + 8 <= text.size() ? text.substr(blank + 8) : "";
  Check(client.LastErrorCode() == static_cast<unsigned int>(std::strtoul(code.c_str(), nullptr, 10)));
  Check(client.LastErrorText().equals(rest.c_str()));
}

void Ask(ZelInstall& client, MemoryTransport& transport, const std::string& reply) {
  const std::string text(reply.c_str());
  const auto answered = [&](bool done, bool success) {
    Check(done == success);
    if (!done) CheckError(client, reply);
    transport.incoming = {reply};
  };
  transport.incoming = {reply};
  answered(client.CRCCheck(), text == "CRCCHECK OK");
  answered(client.Download("x"), text == "DOWNLOAD OK");
  answered(client.DownloadFromFile("x"), text == "DOWNLOADFROMFILE OK");
  answered(client.Install(), text == "INSTALL OK");
  answered(client.Set(ZelInstall::HTTPPROXY, "x"), text.rfind("SET OK", 0) == 0);
  int numbers[3] = {-1, -1, -1};
  const int status = client.Status(numbers[0], numbers[1], numbers[2]);
  Check(status >= ZelInstall::STATUS_ERROR && status <= ZelInstall::STATUS_INSTALL_FINISHED);
  answered(status != ZelInstall::STATUS_ERROR,
           status != ZelInstall::STATUS_ERROR && text.rfind("STATUS OK ", 0) == 0);
  if (status <= ZelInstall::STATUS_CONNECTING) Check((numbers[0] | numbers[1] | numbers[2]) == 0);
  client.Exit();
}

// One folder for all runs: what one run stores the next may find.
struct Folder {
  Folder() {
    char pattern[] = "/tmp/installer-fuzz-XXXXXX";
    path = mkdtemp(pattern);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  std::string path;
};

void Serve(const std::vector<std::string>& requests, ZelInstall& client, MemoryTransport& transport) {
  static const Folder folder;
  installer::Installation installation(folder.path, 0);
  installer::Requests language(installation);
  std::int64_t now = 0;
  for (const std::string& request : requests) {
    const std::optional<std::string> reply = language.Answer(request, now);
    Check(reply.has_value() == (request != "EXIT"));
    installation.Work(now += 1000);
    if (!reply || reply->find(" OK") != std::string::npos) continue;
    transport.incoming = {*reply};
    Check(!client.CRCCheck());
    Check(reply->compare(reply->find(' '), 6, " ERROR") == 0 && client.LastErrorCode() <= 99);
    Check(client.LastErrorText().length() > 1);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::string> lines = Lines({reinterpret_cast<const char*>(data), size});
  MemoryTransport transport;
  ZelInstall client(&transport);
  for (const std::string& line : lines) Ask(client, transport, line);
  Serve(lines, client, transport);
  return 0;
}
