// Shell commands and file copies.
#pragma once

#include <string>

namespace zelto {

// Runs the command with /bin/sh and waits for it. Answers the raw wait status (0 when the command ended
// with code 0), or -1 when the command is null, could not be started, or its status was taken by somebody
// else (a host that ignores or reaps its children). Paths inside go through zelto::ShellPath.
// Threads: any.
int ExecuteShell(const char* command);

// Copies a file; both are the television's paths, which go through zelto::DevicePath here. Answers 0, or
// -1 when a path is empty or a file can't be opened, read or written to its end. An existing destination
// is overwritten.
// Threads: any.
int copy(std::string source, std::string destination);

}  // namespace zelto
