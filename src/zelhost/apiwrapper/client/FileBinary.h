// Files as binary texts of the protocol. Absolute paths are the television's.
#pragma once

#include "apiwrapper/ZEString.h"

// The whole file as a binary text; the null text for an empty file and, with a printed line, for one that
// can't be read. Content beyond 12 MiB is left out: no message could carry it.
ZEString C_FileToBin(const ZEString& path);

// Writes the bytes that the binary text stands for, and prints how many. Whatever stands in the file's place
// is overwritten, but a link is never followed. False, with a printed line, when it could not be written.
// With `print` the bytes are shown as well, unprintable ones as dots.
bool C_BinToFile(const ZEString& data, const ZEString& path, bool print);
