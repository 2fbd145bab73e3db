// Times as the television writes them.
#pragma once

namespace zelto {

// Bytes that a buffer for a local time must hold; an answer that fills it leaves it without a NUL.
inline constexpr int kLocalTimeSize = 32;

// Ask the host for the text of a time in seconds since the epoch, in its own and in twelve-hour format,
// write it into `buffer` and answer the buffer. The rest of the buffer is filled with NUL; without a host
// the text is empty. Null for a null buffer. The third parameter is not used.
// Threads: any that may call the host: those that hold neither the callback nor the queue mutex.
char* ConvertToLocalTime(unsigned long time, char* buffer);
char* ConvertToLocalTime12(unsigned long time, char* buffer, int unused);

}  // namespace zelto
