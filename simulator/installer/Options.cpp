#include "simulator/installer/Options.h"

#include <CLI/CLI.hpp>

#include "simulator/common/Version.h"

namespace installer {
namespace {

constexpr int kLargestPort = 65535;
constexpr std::int64_t kLargestRate = 1'000'000'000;

}  // namespace

bool ParseOptions(int argc, char** argv, Options& options, int& status) {
  CLI::App app("The installer service: downloads, checks and installs a package.", "zelto-installer");
  app.set_version_flag("--version", std::string("zelto-installer ") + simulator::kVersion);
  app.add_option("--port", options.port, "TCP port on this machine; 0 chooses one. It is printed")
      ->capture_default_str()
      ->check(CLI::Range(0, kLargestPort));
  app.add_option("--socket", options.socket, "Socket file to listen at as well");
  app.add_option("--folder", options.folder, "Folder below which everything is written")
      ->capture_default_str();
  app.add_option("--fail", options.failures,
                 "COMMAND[=CODE]: the next one fails with that code; DOWNLOADING and INSTALLING break off "
                 "halfway. May be given several times");
  app.add_option("--rate", options.rate, "Bytes a second that are copied; 0: as fast as it goes")
      ->capture_default_str()
      ->check(CLI::Range(std::int64_t{0}, kLargestRate));
  app.add_flag("-k,--keep", options.keep, "Go on when a client says that the service is to end");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    status = app.exit(error);
    return false;
  }
  return true;
}

}  // namespace installer
