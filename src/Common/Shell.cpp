#include "Common/Shell.h"

#include <fcntl.h>
#include <sys/types.h>

#include <cerrno>
#include <cstdio>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"

namespace zelto {

namespace {

constexpr char kShell[] = "/bin/sh";
constexpr std::size_t kCopyBlock = 65536;
constexpr mode_t kCopyMode = 0666;

bool WriteAll(int descriptor, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t written = System().Write(descriptor, data, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    data += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

bool CopyContent(int source, int destination) {
  char block[kCopyBlock];
  for (;;) {
    const ssize_t size = System().Read(source, block, sizeof block);
    if (size < 0 && errno == EINTR) continue;
    if (size < 0) return false;
    if (size == 0) return true;
    if (!WriteAll(destination, block, static_cast<std::size_t>(size))) return false;
  }
}

int RefuseCopy(const char* reason) {
  ZELTO_FATAL("%s", reason);
  return -1;
}

}  // namespace

int ExecuteShell(const char* command) {
  if (command == nullptr) return -1;
  SpawnRequest request;
  request.executable = kShell;
  request.arguments = {kShell, "-c", command};
  request.failureStatus = 1;
  const pid_t pid = System().Spawn(request);
  if (pid < 0) {
    std::fputs("vfork fail\n", stderr);
    return -1;
  }
  int status = 0;
  pid_t ended = 0;
  do {
    ended = System().WaitPid(pid, &status, 0);
  } while (ended < 0 && errno == EINTR);
  if (ended != pid) {
    std::fprintf(stderr, "waitpid fail - Command : %s\n", command);
    return -1;
  }
  return status;
}

int copy(std::string source, std::string destination) {
  if (source.empty() || destination.empty()) return RefuseCopy("\n src or dest is not valid ");
  const int from = System().Open(DevicePath(source).c_str(), O_RDONLY, 0);
  if (from < 0) return RefuseCopy("\n Sourcefile Doesn't exist");
  const int to = System().Open(DevicePath(destination).c_str(), O_RDWR | O_CREAT | O_TRUNC, kCopyMode);
  if (to < 0) {
    System().Close(from);
    return RefuseCopy("\n Destiantion file Doesn't exist");
  }
  const bool whole = CopyContent(from, to);
  System().Sync();
  System().Close(from);
  System().Sync();
  System().Close(to);
  if (!whole) return RefuseCopy("\n Copy broke off");
  ZELTO_DEBUG("\n\nCopy %s to %s : DONE\n\n", source.c_str(), destination.c_str());
  return 0;
}

}  // namespace zelto
