// The program zelto-tv: a television without a screen, for those who have none with one.
#include <CLI/CLI.hpp>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

#include "simulator/common/Version.h"
#include "simulator/television/Console.h"
#include "simulator/television/DeviceRoot.h"
#include "simulator/television/Screen.h"
#include "simulator/television/Session.h"
#include "simulator/television/TourScript.h"

namespace {

struct Options {
  std::string engine;
  std::string runtime;
  std::string deviceRoot;
  std::string script;
  std::string log;
  television::MediaOptions media;
  bool tour = false;
};

// The build puts library, runtime and television into one folder.
std::string BesideThisProgram(const std::string& name) {
  char path[4096];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  const std::string self(path, length > 0 ? static_cast<std::size_t>(length) : 0);
  return self.substr(0, self.rfind('/') + 1) + name;
}

void RunScript(television::Session& session, const std::string& path) {
  if (path == "-") return session.RunScript(std::cin);
  std::ifstream file(path);
  if (!file) throw std::runtime_error("can't read the script " + path);
  session.RunScript(file);
}

// What engine and runtime write goes into the log; the screen keeps its own way to the terminal.
void WriteLog(const std::string& path) {
  if (std::freopen(path.c_str(), "w", stderr) == nullptr || dup2(STDERR_FILENO, STDOUT_FILENO) < 0)
    throw std::runtime_error("can't write the log " + path);
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
}

int Run(const Options& options, television::Screen& screen) {
  if (!options.log.empty()) WriteLog(options.log);
  television::DeviceRoot root(options.deviceRoot);
  root.Furnish(options.runtime);
  setenv("ZELTO_DEVICE_ROOT", root.Path().c_str(), 1);
  screen.Line("device root: " + root.Path());
  television::Session session(options.engine, root, options.media, screen);
  const bool interactive = isatty(STDIN_FILENO) != 0 && options.script.empty();
  if (options.tour) {
    std::istringstream tour(television::kTourScript);
    session.RunScript(tour);
  } else if (options.script.empty()) {
    session.Run("start");
  }
  if (!options.script.empty()) RunScript(session, options.script);
  if (interactive) {
    screen.Line("\"help\" lists what you can do here, \"quit\" switches the television off.");
    television::RunConsole(session, screen);
  } else if (!options.tour && options.script.empty()) {
    session.RunScript(std::cin);
  }
  screen.ShowReports(false);
  screen.Heading("Summary: " + std::to_string(session.Held()) + " expectations held, " +
                 std::to_string(session.Failed()) + " failed");
  return session.Failed() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  options.engine = BesideThisProgram("libZelto.so");
  options.runtime = BesideThisProgram("zelhost");
  CLI::App app("A television that loads the call-service engine; a prompt or a script drives it.");
  app.set_version_flag("--version", std::string("zelto-tv ") + simulator::kVersion);
  app.add_option("--library", options.engine, "the engine's shared library")->capture_default_str();
  app.add_option("--runtime", options.runtime, "the runtime program")->capture_default_str();
  app.add_option("--device-root", options.deviceRoot,
                 "folder of the television's files; a temporary one by default");
  app.add_option("--script", options.script, "runs the lines of this file, \"-\" for the standard input");
  app.add_option("--log", options.log, "file for what engine and runtime write");
  app.add_option("--microphone", options.media.microphone,
                 "WAV file (48 kHz) that the microphone hears over and over; a tone by default");
  app.add_option("--camera", options.media.camera,
                 "folder of JPEG pictures that the camera sees in turn; a moving test picture by default")
      ->expected(0, 1);
  app.add_option("--speaker", options.media.speaker, "WAV file that keeps what the speaker plays");
  app.add_option("--screen", options.media.screen,
                 "folder that keeps the last " + std::to_string(television::ScreenFolder::kMostPictures) +
                     " pictures that the screen shows");
  app.add_flag("--tour", options.tour, "shows a short tour first");
  CLI11_PARSE(app, argc, argv);
  television::Screen screen;
  try {
    return Run(options, screen);
  } catch (const std::exception& error) {
    screen.Line(std::string("zelto-tv: ") + error.what());
    return EXIT_FAILURE;
  }
}
