/* What a killed process leaves behind. */
#ifndef ZELTO_SHMIPC_LEFTOVERS_H
#define ZELTO_SHMIPC_LEFTOVERS_H

#ifdef __cplusplus
extern "C" {
#endif

/* Removes those segments of the four channels that nobody is attached to, then their key file, so that
 * the channels can be created afresh. Segments in use stay. Does nothing without a key file, or while
 * another process opens a channel. Threads: any. */
void SHMIPC_remove_leftovers(void);

/* Creates the key file when there is none and removes what nobody is attached to under its keys: a new file
 * can have the number, and so the keys, of one that a killed process once had. Threads: any. */
void SHMIPC_claim_keys(void);

#ifdef __cplusplus
}
#endif

#endif
