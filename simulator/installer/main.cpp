// The program zelto-installer.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "simulator/common/EndSignals.h"
#include "simulator/installer/Options.h"
#include "simulator/installer/Service.h"

int main(int argc, char** argv) {
  installer::Options options;
  int status = EXIT_SUCCESS;
  if (!installer::ParseOptions(argc, argv, options, status)) return status;
  try {
    simulator::EndSignals::Block();
    installer::Service service(options);
    std::printf("%d\n", service.Port());
    std::fflush(stdout);
    service.Run();
    return EXIT_SUCCESS;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "zelto-installer: %s\n", failure.what());
    return EXIT_FAILURE;
  }
}
