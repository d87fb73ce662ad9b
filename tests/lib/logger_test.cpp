// SPDX-License-Identifier: MIT
#include "logger.h"

#include <syslog.h>

#include <future>

#include "test-support.h"

namespace {

constexpr size_t STAMP = sizeof("Jan 31 23:59:59 ") - 1, LIMIT = 1048576;
const std::string FILLS_THE_LOG(LIMIT - STAMP, 'x');  // to the last byte before it is rotated
int syslog_messages = 0;

/// What follows the time stamp of now at the start of `text`.
std::string AfterStamp(const std::string &text) {
    const time_t now = time(nullptr);
    struct tm parsed = *localtime(&now);
    const char *const rest = strptime(text.c_str(), "%b %d %H:%M:%S ", &parsed);
    return rest == nullptr || labs(mktime(&parsed) - now) > 30 ? "no stamp: " + text : rest;
}

void Write(const std::string &text, Logger::Level level = Logger::LEVEL_ERROR) {
    Logger::LogMsg(level, "service_debug", "%s", text.c_str());
}

class LoggerTest : public HomeTest {
protected:
    LoggerTest() {
        setenv("TZ", "Asia/Tokyo", 1);
        tzset();
    }
    int Start(const fs::path &path, Logger::Type type = Logger::TYPE_FILE) {
        return Logger::Initialize(type, path.c_str(), (root / "levels").c_str(), 9);
    }
    fs::path Rotated(int index) { return root / ("log_" + std::to_string(index)); }

    const fs::path log = root / "log";
};

TEST_F(LoggerTest, ThresholdsPerComponent) {
    const std::tuple<const char *, Logger::Level, bool> cases[] = {
        {"", Logger::LEVEL_WARNING, true},
        {"launcher_debug=7\nService_debug=7\ndefault_component=7\n", Logger::LEVEL_NOTE, false},
        {"service_debug=7\n", Logger::LEVEL_DEBUG, true},
        {"", Logger::LEVEL_DEBUG, true},  // what was set stays
        {"service_debug=all\n", Logger::LEVEL_ERROR, false},
    };
    Logger::log_level.clear();
    for (const auto &[levels, level, written] : cases) {
        WriteFile(root / "levels", levels);
        testing::internal::CaptureStdout();
        EXPECT_EQ(Start("", Logger::TYPE_STDOUT), 0);
        Write("text", level);
        EXPECT_EQ(testing::internal::GetCapturedStdout() != "", written) << levels;
    }
}

TEST_F(LoggerTest, OtherDestinations) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Start("", Logger::TYPE_STDERR), 0);
    Write("err\n");
    EXPECT_EQ(AfterStamp(testing::internal::GetCapturedStderr()), "err\n");
    EXPECT_EQ(Start("", Logger::TYPE_SYSLOG), 0);
    Write("syslog");
    Logger::Destroy();
    Write("too late");
    Logger::log_initialized = true;  // as in a program that has not set up its log yet
    Write("early");
    EXPECT_EQ(std::exchange(syslog_messages, 0), 2);
}

TEST_F(LoggerTest, RotatesBeyondOneMebibyteOfItsOwn) {
    for (int i = 0; i < 8; ++i) {
        WriteFile(Rotated(i), std::to_string(i));
    }
    EXPECT_EQ(Start(log), 0);
    const int descriptor = fileno(Logger::log_fp);
    fs::remove(log);  // by another writer, which does not count here
    ++*Logger::log_rotated_count_shared;
    WriteFile(log, "from another writer\n");
    Write(FILLS_THE_LOG);
    EXPECT_EQ(ReadFile(Rotated(0)), "0");
    Write("last\n");
    EXPECT_EQ(fs::file_size(Rotated(0)), 20 + LIMIT + STAMP + 5);
    for (int i = 1; i < 8; ++i) {
        EXPECT_EQ(ReadFile(Rotated(i)), std::to_string(i - 1));
    }
    EXPECT_FALSE(fs::exists(Rotated(8)));
    Write("new\n");
    EXPECT_EQ(AfterStamp(ReadFile(log)), "new\n");
    Write(FILLS_THE_LOG.substr(STAMP + 4));
    Logger::ReloadLogFile();  // appends, and counts from zero
    Write("more\n");
    EXPECT_EQ(fs::file_size(log), LIMIT + STAMP + 5);
    EXPECT_EQ(fileno(Logger::log_fp), descriptor);  // the lowest that is free: none stays open
}

TEST_F(LoggerTest, FailuresKeepTheStreamOrDropMessages) {
    EXPECT_EQ(Start(root), -1);
    Write(FILLS_THE_LOG);
    Write("last\n");
    EXPECT_EQ(fs::file_size(log), LIMIT + STAMP + 5);
    EXPECT_EQ(Start(log), 0);
    fs::remove(log);  // so that it cannot be rotated
    EXPECT_EQ(Logger::Rotate(), -1);
    Write("dropped until the log is opened again\n");
    Logger::ReloadLogFile();
    Write("written\n");
    EXPECT_EQ(AfterStamp(ReadFile(log)), "written\n");
}

TEST_F(LoggerTest, MessagesOfEightThreadsStayWhole) {
    std::vector<std::future<void>> threads;
    for (const char letter : std::string("abcdefgh")) {
        threads.push_back(std::async(std::launch::async, [letter] {
            for (int i = 0; i < 4000; ++i) {
                Write(std::string(100, letter) + "\n");
            }
        }));
    }
    threads.clear();  // waits for them
    // Behind the stamps.
    EXPECT_EQ(0, system("[ $(cut -c17- log* | sort | uniq -c | grep -cE '^ *4000 .{100}$') = 8 ]"));
}

}  // namespace

// These replace the C library's functions; hardened builds call the second one.
extern "C" void vsyslog(int priority, const char *, va_list) {
    syslog_messages += priority == LOG_ERR;
}
extern "C" void __vsyslog_chk(int priority, int, const char *format, va_list args) {
    vsyslog(priority, format, args);
}
