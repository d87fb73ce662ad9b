// SPDX-License-Identifier: MIT
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>

#include <fstream>
#include <memory>

#include "compare.h"
#include "logger.h"

#define LOG_MODULE "extractor"
#include "log-macros.h"

static const ustring LOG_COMPONENT("extractor_debug");

namespace {

constexpr int kKeptFiles = 50;  // the current one included

/// A log like the launcher's, with a threshold for each component.
void OpenLog() {
    static const bool opened = [] {
        const std::string levels = WorkFolder() + "/launcher.debug";
        std::ofstream(levels) << "launcher_debug=4\nservice_debug=4\nextractor_debug=4\n"
                                 "file_op_debug=4\n";
        Logger::Initialize(Logger::TYPE_FILE, (WorkFolder() + "/launcher.log").c_str(),
                           levels.c_str(), kKeptFiles);
        return true;
    }();
    static_cast<void>(opened);
}

/// Like the project's log: the same bytes with a time stamp, a lock, a flush for each message, and
/// the same size and number of files.
spdlog::logger &PeerLog() {
    static const std::unique_ptr<spdlog::logger> log = [] {
        auto sink = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
            WorkFolder() + "/peer.log", 1024 * 1024, kKeptFiles - 1);
        auto made = std::make_unique<spdlog::logger>("peer", sink);
        made->set_pattern("%b %d %H:%M:%S %v");
        made->flush_on(spdlog::level::trace);
        return made;
    }();
    return *log;
}

}  // namespace

void CompareLogging() {
    benchmark::RegisterBenchmark("log-filtered/project", [](benchmark::State &state) {
        OpenLog();
        const unsigned long before = Allocations();
        for (auto _ : state) {
            MSG_DEBUG("decompress from '%s' to '%s'\n", "lumaris.wpk", "Lumaris.app");
        }
        state.counters["allocations"] = double(Allocations() - before);
    });
    benchmark::RegisterBenchmark("log-filtered/peer", [](benchmark::State &state) {
        OpenLog();
        for (auto _ : state) {
            Logger::Lock();
            Logger::Unlock();
        }
    });
    benchmark::RegisterBenchmark("log-written/project", [](benchmark::State &state) {
        OpenLog();
        for (auto _ : state) {
            MSG_ERROR("archive_read_extract2 failed: '%s'\n", "Truncated input file");
        }
    });
    benchmark::RegisterBenchmark("log-written/peer", [](benchmark::State &state) {
        spdlog::logger &log = PeerLog();
        for (auto _ : state) {
            log.error("[ERROR] extractor({}): archive_read_extract2 failed: '{}'", __LINE__,
                      "Truncated input file");
        }
    });
}
