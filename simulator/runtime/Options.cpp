#include "simulator/runtime/Options.h"

#include <CLI/CLI.hpp>
#include <cstdlib>

#include "simulator/common/Version.h"

namespace simulator {
namespace {

constexpr int kFastestPace = 1000;

std::string FromEnvironment(const char* name, const char* otherwise) {
  const char* value = std::getenv(name);
  return value == nullptr || *value == '\0' ? otherwise : value;
}

}  // namespace

bool ParseOptions(int argc, char** argv, Options& options, int& status) {
  options.home = FromEnvironment("HOME", ".");
  options.scenario = FromEnvironment("ZELHOST_SCENARIO", "");

  CLI::App app("The runtime process: a simulated service behind the engine's protocol.", "zelhost");
  app.set_version_flag("--version", kVersion);
  app.add_option("-s,--socket", options.socket, "Socket file to listen at")->capture_default_str();
  app.add_flag("-x", "Accepted, as the engine gives it; changes nothing");
  app.add_flag("-o", "Accepted, as the engine gives it; changes nothing");
  app.add_option("-m,--clock-difference", options.clockDifference, "Seconds to add to this machine's clock");
  app.add_option("--scenario", options.scenario, "File of steps to run (or environment ZELHOST_SCENARIO)");
  app.add_option("--pace", options.pace,
                 "Makes its own waits so many times as short (or environment ZELHOST_PACE)")
      ->envname("ZELHOST_PACE")
      ->check(CLI::Range(1, kFastestPace));
  app.add_option("--seed", options.seed, "Makes what is random repeatable")->capture_default_str();
  app.add_flag("--decode", options.decode, "Turn frames from standard input into words, and end");
  app.add_flag("-v,--verbose", options.verbose, "Write every frame in words to standard error");
  app.add_flag("-k,--keep", options.keep, "Go on listening when an engine has gone");
  app.footer("The world is kept in $HOME/.Zelto, where \"door\" is the socket that takes orders.");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    status = app.exit(error);
    return false;
  }
  return true;
}

}  // namespace simulator
