/* Shared-memory channels: rings of packets from one process to another, one sender and one receiver each.
 *
 * Timeouts are in milliseconds: -1 waits for ever, 0 does not wait, above 2000 counts as 2000.
 * Results: 0 success, -1 bad request or wrong state, -2 side not initialised, -4 timed out, -5 out of
 * memory. Whatever the other process writes into the segment, no operation reads or writes outside of it:
 * one that meets a bad word answers -1 (or null), now and as long as the word is bad.
 *
 * Threads: several threads of a process may share a handle, unless its locking is disabled; opening and
 * closing belong to one. A thread may be cancelled inside an operation, which then leaves the handle
 * unlocked. */
#ifndef ZELTO_SHMIPC_H
#define ZELTO_SHMIPC_H

#include <pthread.h>
#include <stdint.h>
#include <sys/types.h>

#define SHMIPC_EXPORT __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* What stands before a packet's payload. The types belong to the users. */
typedef struct SHMIPC_packet_t {
  uint32_t type;
  uint32_t length; /* bytes of payload */
} SHMIPC_packet_t;

/* A process's end of a channel. For the functions below only. */
typedef struct SHMIPC_channel_t {
  key_t key;
  int segment_id;
  void* segment;
  char* path;
  int creator;
  int sender_initialized;
  int receiver_initialized;
  unsigned char* batch; /* what the receiver has taken and not yet handed out */
  uint32_t batch_offset;
  uint32_t batch_count;
  pthread_mutex_t mutex;
  int locking_disabled;
  /* Taken from the segment and checked once, so that a later change of it has no effect. */
  uint32_t capacity;  /* at opening */
  uint32_t ring_size; /* when a side is initialised */
} SHMIPC_channel_t;

/* Creates (`create` not 0) or attaches to the segment that belongs to the key file and project id. An
 * existing segment is not created again. Null on any failure, with errno telling which; everything is
 * undone then. The caller closes the handle. */
SHMIPC_EXPORT SHMIPC_channel_t* SHMIPC_open_channel(const char* path, unsigned size, int project, int create);
/* Detaches and frees the handle, not the segment. Null is ignored. */
SHMIPC_EXPORT void SHMIPC_close_channel(SHMIPC_channel_t* channel);

/* The four channels of the engine, by its own roles. The runtime opens them with `create` 0. */
SHMIPC_EXPORT SHMIPC_channel_t* SHMIPC_open_audio_in_channel(int create);
SHMIPC_EXPORT SHMIPC_channel_t* SHMIPC_open_audio_out_channel(int create);
SHMIPC_EXPORT SHMIPC_channel_t* SHMIPC_open_video_in_channel(int create);
SHMIPC_EXPORT SHMIPC_channel_t* SHMIPC_open_video_out_channel(int create);

/* Makes the handle the sending or the receiving end; -1 when it is either already. */
SHMIPC_EXPORT int SHMIPC_initialize_sender(SHMIPC_channel_t* channel);
SHMIPC_EXPORT int SHMIPC_initialize_receiver(SHMIPC_channel_t* channel);
/* Waits until the other side has initialised, looking every 250 ms. */
SHMIPC_EXPORT int SHMIPC_wait_for_connection(SHMIPC_channel_t* channel, int timeout);

/* Leaves a copy of the blob for the other side; it takes room from the ring. Only the creator, before it
 * initialises a side. -1 when the blob leaves less than 32 bytes. */
SHMIPC_EXPORT int SHMIPC_put_config(SHMIPC_channel_t* channel, const void* blob, unsigned size);
/* The blob inside the segment, valid until the handle is closed; null when there is none. */
SHMIPC_EXPORT void* SHMIPC_get_config(SHMIPC_channel_t* channel);
/* The audio channels' blob, which bounds their latency by the room that it takes. Freed with free() by the
 * caller; null when memory is short. */
SHMIPC_EXPORT void* AS_resize_channel_conf(unsigned rate, unsigned factor, unsigned* size);

/* Sends `length` bytes of payload, or those that follow the header when `payload` is null. -1 for a packet
 * that can never fit, -4 when no room appeared in time. */
SHMIPC_EXPORT int SHMIPC_send_packet(SHMIPC_channel_t* channel, const SHMIPC_packet_t* packet,
                                     const void* payload, int timeout);
/* The next packet, its payload behind it, valid until the next call on the handle; or null with `*error`
 * set. `error` may be null; it is 0 with a packet. */
SHMIPC_EXPORT SHMIPC_packet_t* SHMIPC_recv_packet(SHMIPC_channel_t* channel, int timeout, int* error);

/* From now on the handle is used by one thread at a time and no operation locks. */
SHMIPC_EXPORT void SHMIPC_disable_locking(SHMIPC_channel_t* channel);

#ifdef __cplusplus
}
#endif

#endif
