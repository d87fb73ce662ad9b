// SPDX-License-Identifier: MIT
#include "tmp-name-gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

TmpNameGen &TmpNameGen::getInstance() {
    static TmpNameGen tmp_name;
    return tmp_name;
}

TmpNameGen::TmpNameGen() {
    get_key(m_key, sizeof(m_key));
    rc4_init(m_sbox, m_key);
}

int TmpNameGen::get_key(unsigned char *buf, unsigned long n) {
    struct timeval now = {};
    gettimeofday(&now, nullptr);
    return snprintf(reinterpret_cast<char *>(buf), n, "%lu-%lu",
                    static_cast<unsigned long>(now.tv_sec),
                    static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char *state, unsigned char *key) {
    for (int i = 0; i < 256; ++i) {
        state[i] = static_cast<unsigned char>(i);
    }
    if (key[0] == 0) {
        srand(static_cast<unsigned int>(time(nullptr)));
        for (int i = 0; i < 256; ++i) {
            key[i] = static_cast<unsigned char>(rand());
        }
    }
    int j = 0;
    for (int i = 0; i < 256; ++i) {
        j = (j + state[i] + key[i]) % 256;
        std::swap(state[i], state[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char *state, unsigned char *out, int n) {
    // The permutation carries over from call to call, the indices do not.
    int i = 0;
    int j = 0;
    for (int k = 0; k < n; ++k) {
        i = (i + 1) % 256;
        j = (j + state[i]) % 256;
        std::swap(state[i], state[j]);
        out[k] = state[(state[i] + state[j]) % 256];
    }
}

ustring TmpNameGen::getTmpName() {
    static const char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    char name[8];

    pthread_mutex_lock(&m_lock);
    rc4_randomize(m_sbox, m_out, sizeof(m_out));
    const unsigned char *in = m_out;
    for (char *out = name; out != name + sizeof(name); out += 4, in += 3) {
        const int bits = in[0] << 16 | in[1] << 8 | in[2];
        out[0] = map[bits >> 18];
        out[1] = map[bits >> 12 & 63];
        out[2] = map[bits >> 6 & 63];
        out[3] = map[bits & 63];
    }
    pthread_mutex_unlock(&m_lock);

    return ustring().assign(name, sizeof(name));
}

ustring TmpNameGen::getTmpPath(const ustring &dir) {
    return dir + "/" + getTmpName();
}
