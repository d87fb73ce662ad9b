// SPDX-License-Identifier: MIT
#pragma once

#include <zstd.h>

#include <cstddef>
#include <memory>
#include <vector>

/// Compresses what it is given into one Zstandard frame (RFC 8878) that ends with a checksum of its
/// content, which libarchive's own writer leaves out. The bytes depend on the input, the level and
/// the version of libzstd, not on how many processors there are.
class ZstdStream {
public:
    /// `fd` stays the caller's. Throws std::runtime_error when libzstd refuses the level.
    ZstdStream(int fd, int level);

    /// Throws std::runtime_error when writing fails.
    void Write(const void *data, std::size_t size);
    /// Ends the frame; nothing may be written after it.
    void Finish();

private:
    struct FreeContext {
        void operator()(ZSTD_CCtx *context) const { ZSTD_freeCCtx(context); }
    };

    void Set(ZSTD_cParameter parameter, int value);
    void Compress(ZSTD_inBuffer input, ZSTD_EndDirective directive);

    const int m_fd;
    std::unique_ptr<ZSTD_CCtx, FreeContext> m_context;
    std::vector<char> m_block;
};
