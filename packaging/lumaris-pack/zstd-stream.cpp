// SPDX-License-Identifier: MIT
#include "zstd-stream.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>

#include "client-layout.h"
#include "output-folder.h"

ZstdStream::ZstdStream(int fd, int level)
    : m_fd(fd), m_context(ZSTD_createCCtx()), m_block(ZSTD_CStreamOutSize()) {
    if (!m_context) {
        throw std::bad_alloc();
    }
    Set(ZSTD_c_compressionLevel, level);
    Set(ZSTD_c_checksumFlag, 1);
    // With workers the input is cut into jobs, whose size depends on the level alone: so there is
    // always at least one. A libzstd without threads refuses any; it makes other bytes.
    const unsigned workers = std::max(1U, std::thread::hardware_concurrency());
    ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_nbWorkers, static_cast<int>(workers));
}

void ZstdStream::Set(ZSTD_cParameter parameter, int value) {
    const std::size_t status = ZSTD_CCtx_setParameter(m_context.get(), parameter, value);
    if (ZSTD_isError(status) != 0) {
        throw std::runtime_error(std::string("cannot compress: ") + ZSTD_getErrorName(status));
    }
}

void ZstdStream::Write(const void *data, std::size_t size) {
    Compress({data, size, 0}, ZSTD_e_continue);
}

void ZstdStream::Finish() {
    Compress({nullptr, 0, 0}, ZSTD_e_end);
}

void ZstdStream::Compress(ZSTD_inBuffer input, ZSTD_EndDirective directive) {
    for (bool done = false; !done;) {
        ZSTD_outBuffer output = {m_block.data(), m_block.size(), 0};
        const std::size_t left = ZSTD_compressStream2(m_context.get(), &output, &input, directive);
        if (ZSTD_isError(left) != 0) {
            throw std::runtime_error(std::string("cannot compress: ") + ZSTD_getErrorName(left));
        }
        WriteText(m_fd, {m_block.data(), output.pos}, kPackageFile);
        // At the end what is left counts, before it only that everything was taken.
        done = directive == ZSTD_e_end ? left == 0 : input.pos == input.size;
    }
}
