// SPDX-License-Identifier: MIT
#pragma once

#include <pthread.h>

#include "ustring.h"

/// Short random names for temporary files and folders.
///
/// The names keep temporary files from colliding; they are not secret. The generator is RC4, keyed
/// from the clock, which RFC 7465 bans from TLS. Bits are grouped into characters as in Base64
/// (RFC 4648), but with another alphabet. Nothing here accesses the disk.
class TmpNameGen {
public:
    /// The process-wide generator, seeded on the first call.
    static TmpNameGen &getInstance();

    TmpNameGen();
    ~TmpNameGen() {}

    /// Writes the seed text, "seconds-microseconds" of the current time, into `buf`: at most `n`
    /// bytes with the terminator. Returns what snprintf returns.
    static int get_key(unsigned char *buf, unsigned long n);
    /// Schedules the 256-byte `key` into the 256-byte `state`; an empty key is first filled with
    /// random bytes. Takes no lock.
    static void rc4_init(unsigned char *state, unsigned char *key);
    /// Writes `n` generator bytes into `out`. Takes no lock.
    static void rc4_randomize(unsigned char *state, unsigned char *out, int n);

    /// A new name of eight characters; may be called from any thread.
    ustring getTmpName();
    /// `dir` + "/" + a new name.
    ustring getTmpPath(const ustring &dir);

protected:
    unsigned char m_sbox[256] = {};
    unsigned char m_key[256] = {};  // seed text, then zero bytes
    unsigned char m_out[6] = {};    // the bytes that the latest name encodes

    static pthread_mutex_t m_lock;  // guards the state of every generator after its construction
};
