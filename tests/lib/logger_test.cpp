// SPDX-License-Identifier: MIT
#include "logger.h"

#include <fcntl.h>
#include <syslog.h>

#include <thread>

#include "../support/test-support.h"

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
    int Start(const std::string &path, Logger::Type type = Logger::TYPE_FILE) {
        return Logger::Initialize(type, path, m_folder + "/launcher.debug", 50);
    }
    std::string Rotated(int index) { return m_path + "_" + std::to_string(index); }

    char m_name[24] = "/tmp/logger-test-XXXXXX";
    const std::string m_folder = mkdtemp(m_name), m_path = m_folder + "/launcher.log";
};

TEST_F(LoggerTest, ThresholdsPerComponent) {
    const std::tuple<const char *, Logger::Level, bool> cases[] = {
        {"", Logger::LEVEL_WARNING, true},
        {"launcher_debug=7\nService_debug=7\ndefault_component=7\n", Logger::LEVEL_NOTE, false},
        {"service_debug=7\n", Logger::LEVEL_DEBUG, true},
        {"", Logger::LEVEL_DEBUG, true},  // what was set stays
        {"service_debug=all\n", Logger::LEVEL_ERROR, false},
    };
    for (const auto &[levels, level, written] : cases) {
        WriteFile(m_folder + "/launcher.debug", levels);
        testing::internal::CaptureStdout();
        EXPECT_EQ(Start("", Logger::TYPE_STDOUT), 0);
        Log("text", level);
        EXPECT_EQ(testing::internal::GetCapturedStdout() != "", written) << levels;
    }
}

TEST_F(LoggerTest, OtherDestinations) {
    EXPECT_NE(fcntl(fileno(Logger::log_fp), F_GETFD) & FD_CLOEXEC, 0);
    testing::internal::CaptureStderr();
    EXPECT_EQ(Start("", Logger::TYPE_STDERR), 0);
    Log("err\n");
    EXPECT_EQ(AfterStamp(testing::internal::GetCapturedStderr()), "err\n");
    EXPECT_EQ(Start("", Logger::TYPE_SYSLOG), 0);
    Log("syslog");
    Logger::Destroy();
    Log("too late");
    EXPECT_EQ(std::exchange(syslog_messages, 0), 1);
}

TEST_F(LoggerTest, RotatesBeyondOneMebibyteOfItsOwn) {
    for (int i = 0; i < 49; ++i) {
        WriteFile(Rotated(i), std::to_string(i));
    }
    WriteFile(m_path, "from an earlier start\n");
    ASSERT_EQ(Start(m_path), 0);
    const int descriptor = fileno(Logger::log_fp);
    Log(FILLS_THE_LOG);
    EXPECT_EQ(ReadFile(Rotated(0)), "0");
    Log("last\n");
    EXPECT_EQ(fs::file_size(Rotated(0)), 22 + LIMIT + STAMP + 5);
    for (int i = 1; i < 49; ++i) {
        EXPECT_EQ(ReadFile(Rotated(i)), std::to_string(i - 1));
    }
    EXPECT_FALSE(fs::exists(Rotated(49)));
    Log("new\n");
    EXPECT_EQ(AfterStamp(ReadFile(m_path)), "new\n");
    Log(FILLS_THE_LOG.substr(STAMP + 4));
    Logger::ReloadLogFile();  // appends, and counts from zero
    Log("more\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + STAMP + 5);
    EXPECT_EQ(fileno(Logger::log_fp), descriptor);  // the lowest that is free: none stays open
}

TEST_F(LoggerTest, FailuresKeepTheStreamOrDropMessages) {
    EXPECT_EQ(Start(m_folder), -1);
    Log(FILLS_THE_LOG);
    Log("last\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + STAMP + 5);
    ASSERT_EQ(Start(m_path), 0);
    fs::remove(m_path);  // so that it cannot be rotated
    Log(FILLS_THE_LOG + 'y');
    Log("dropped until the log is opened again\n");
    Logger::ReloadLogFile();
    Log("written\n");
    EXPECT_EQ(AfterStamp(ReadFile(m_path)), "written\n");
}

TEST_F(LoggerTest, MessagesOfEightThreadsStayWhole) {
    std::map<std::string, int> expected, found;
    std::vector<std::thread> threads;
    for (const char letter : std::string("abcdefgh")) {
        expected[std::string(100, letter)] = 4000;
        threads.emplace_back([letter] {
            for (int i = 0; i < 4000; ++i) {
                Log(std::string(100, letter) + "\n");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    for (const auto &file : fs::directory_iterator(m_folder)) {
        std::ifstream lines(file.path());
        for (std::string line; std::getline(lines, line);) {
            ++found[AfterStamp(line)];
        }
    }
    EXPECT_EQ(found, expected);
}

}  // namespace

/// Instead of the system's.
extern "C" void vsyslog(int priority, const char *, va_list) {
    syslog_messages += priority == LOG_ERR;
}
