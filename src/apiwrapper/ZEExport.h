// Marks what the library exports; everything else stays hidden.
#pragma once

#define ZELTO_EXPORT __attribute__((visibility("default")))
