// SPDX-License-Identifier: MIT
#include "logger.h"

#include <fcntl.h>
#include <syslog.h>

#include <sstream>
#include <thread>
#include <tuple>

#include "../support/test-support.h"

namespace {

constexpr size_t STAMP = sizeof("Jan 31 23:59:59 ") - 1, LIMIT = 1048576;
int syslog_priority = -1;

/// Texts that take that many bytes in the log, time stamp included.
const std::string ONE_MEBIBYTE(LIMIT - STAMP, 'x');
const std::string ONE_BYTE_MORE = ONE_MEBIBYTE + 'y';

/// What follows the time stamp of now at the start of `text`.
std::string AfterStamp(const std::string &text) {
    const time_t now = time(nullptr);
    struct tm parsed = {};
    localtime_r(&now, &parsed);
    const char *const rest = strptime(text.c_str(), "%b %d %H:%M:%S ", &parsed);
    return rest == nullptr || labs(mktime(&parsed) - now) > 30 ? "no stamp: " + text : rest;
}

void Log(const std::string &text, Logger::Level level = Logger::LEVEL_ERROR) {
    Logger::LogMsg(level, "service_debug", "%s", text.c_str());
}

class LoggerTest : public testing::Test {
protected:
    LoggerTest() {
        setenv("TZ", "Asia/Tokyo", 1);
        EXPECT_EQ(Start(m_path), 0);
    }
    ~LoggerTest() override {
        Logger::Destroy();
        Logger::log_level.clear();
        fs::remove_all(m_folder);
    }
    static int Start(const std::string &path, const std::string &levels = {}) {
        return Logger::Initialize(Logger::TYPE_FILE, path, levels, 50);
    }
    std::string Rotated(int index) { return m_path + "_" + std::to_string(index); }

    char m_name[24] = "/tmp/logger-test-XXXXXX";
    const std::string m_folder = mkdtemp(m_name), m_path = m_folder + "/launcher.log";
};

TEST_F(LoggerTest, ThresholdsPerComponent) {
    const std::tuple<const char *, Logger::Level, bool> cases[] = {
        {"", Logger::LEVEL_WARNING, true},
        {"launcher_debug=7\nService_debug=7\ndefault_component=7\n", Logger::LEVEL_NOTE, false},
        {"service_debug=7\n[rejected]\n", Logger::LEVEL_NOTE, false},
        {"service_debug=7\n", Logger::LEVEL_DEBUG, true},
        {"", Logger::LEVEL_DEBUG, true},  // what was set stays
        {"service_debug=all\n", Logger::LEVEL_ERROR, false},
    };
    for (const auto &[levels, level, written] : cases) {
        std::ofstream(m_folder + "/launcher.debug") << levels;
        ASSERT_EQ(Start(m_path, m_folder + "/launcher.debug"), 0);
        const auto before = fs::file_size(m_path);
        Log("text\n", level);
        EXPECT_EQ(fs::file_size(m_path) > before, written) << level << ": " << levels;
    }
}

TEST_F(LoggerTest, OtherDestinations) {
    EXPECT_NE(fcntl(fileno(Logger::log_fp), F_GETFD) & FD_CLOEXEC, 0);
    testing::internal::CaptureStdout();
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, "", "", 0), 0);
    Log("out\n");
    EXPECT_EQ(AfterStamp(testing::internal::GetCapturedStdout()), "out\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 0), 0);
    Log("err\n");
    EXPECT_EQ(AfterStamp(testing::internal::GetCapturedStderr()), "err\n");
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_SYSLOG, "", "", 0), 0);
    Log("syslog");
    EXPECT_EQ(syslog_priority, LOG_ERR);
}

TEST_F(LoggerTest, RotatesBeyondOneMebibyteOfItsOwn) {
    for (int i = 0; i < 49; ++i) {
        std::ofstream(Rotated(i)) << i;
    }
    std::ofstream(m_path) << "from an earlier start\n";
    ASSERT_EQ(Start(m_path), 0);
    Log(ONE_MEBIBYTE);
    EXPECT_EQ(ReadFile(Rotated(0)), "0");
    Log("last\n");
    EXPECT_EQ(fs::file_size(Rotated(0)), 22 + LIMIT + STAMP + 5);
    for (int i = 1; i < 49; ++i) {
        EXPECT_EQ(ReadFile(Rotated(i)), std::to_string(i - 1));
    }
    EXPECT_FALSE(fs::exists(Rotated(49)));
    Log("new\n");
    EXPECT_EQ(AfterStamp(ReadFile(m_path)), "new\n");
    Log(ONE_MEBIBYTE.substr(STAMP + 4));
    Logger::ReloadLogFile();  // appends, and counts from zero
    Log("more\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + STAMP + 5);
}

TEST_F(LoggerTest, FailedInitializeKeepsTheEarlierStream) {
    EXPECT_EQ(Start(m_folder), -1);
    Log(ONE_BYTE_MORE);
    Log("last\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + 1 + STAMP + 5);
}

TEST_F(LoggerTest, DropsMessagesAfterAFailedRotationUntilReload) {
    for (const bool moved_away : {true, false}) {
        if (moved_away) {
            fs::remove(m_path);
        }
        for (int i = 0; i < 50 && !moved_away; ++i) {  // a free name would be shifted down to log_0
            fs::create_directories(Rotated(i) + "/full");
        }
        Log(ONE_BYTE_MORE);
        Log("dropped\n");
        EXPECT_EQ(Logger::log_fp, nullptr);
        Logger::ReloadLogFile();
        Log("written\n");
        const std::string text = ReadFile(m_path);
        EXPECT_EQ(text.find("dropped"), text.npos);
        EXPECT_EQ(text.rfind("written\n"), text.size() - 8);
    }
}

TEST_F(LoggerTest, KeepsTheNewestMessagesOfEightThreadsWhole) {
    constexpr unsigned THREADS = 8, MESSAGES = 25000;  // 60 MiB: more than is kept
    const auto message = [](unsigned t, unsigned i) {
        return std::to_string(t) + " " + std::to_string(i) + " " +
               std::string(i % 17 == 0 ? 3000 : i % 200, char('a' + t));
    };
    std::vector<std::thread> threads;
    for (unsigned t = 0; t < THREADS; ++t) {
        threads.emplace_back([=] {
            for (unsigned i = 0; i < MESSAGES; ++i) {
                Log(message(t, i) + "\n");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(50, std::distance(fs::directory_iterator(m_folder), {}));
    int torn = 0;
    std::vector<unsigned> next(THREADS, 0);
    for (int file = 48; file >= -1; --file) {
        std::stringstream lines(ReadFile(file < 0 ? m_path : Rotated(file)));
        for (std::string line; std::getline(lines, line);) {
            unsigned t = 0, i = 0;
            sscanf(AfterStamp(line).c_str(), "%u %u", &t, &i);
            torn += AfterStamp(line) != message(t, i) || (next.at(t) != 0 && next.at(t) != i);
            next.at(t) = i + 1;
        }
    }
    EXPECT_EQ(0, torn);
    EXPECT_EQ(std::vector<unsigned>(THREADS, MESSAGES), next);
}

}  // namespace

/// Instead of the system's.
extern "C" void vsyslog(int priority, const char *, va_list) {
    syslog_priority = priority;
}
