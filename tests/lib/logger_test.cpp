#include "logger.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <tuple>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr size_t STAMP = sizeof("Jan 31 23:59:59 ") - 1, LIMIT = 1048576;

/// Texts that take that many bytes in the log, time stamp included.
const std::string ONE_MEBIBYTE(LIMIT - STAMP, 'x');
const std::string ONE_BYTE_MORE = ONE_MEBIBYTE + 'y';

/// What follows the time stamp at the start of `text`.
std::string AfterStamp(const std::string &text) {
    struct tm parsed = {};
    const char *const rest = strptime(text.c_str(), "%b %d %H:%M:%S ", &parsed);
    return rest == nullptr ? "no time stamp: " + text.substr(0, 80) : rest;
}

std::string Read(const std::string &path) {
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), {}};
}

void Log(const std::string &text, Logger::Level level = Logger::LEVEL_ERROR) {
    Logger::LogMsg(level, "service_debug", "%s", text.c_str());
}

class LoggerTest : public testing::Test {
protected:
    LoggerTest() { EXPECT_EQ(Start(m_path), 0); }
    ~LoggerTest() override {
        Logger::Destroy();
        Logger::log_level.clear();
        fs::remove_all(m_folder);
    }
    int Start(const std::string &path, const std::string &levels = {}) {
        return Logger::Initialize(Logger::TYPE_FILE, path, levels, 50);
    }
    std::string Rotated(int index) { return m_path + "_" + std::to_string(index); }

    char m_name[24] = "/tmp/logger-test-XXXXXX";
    const std::string m_folder = mkdtemp(m_name), m_path = m_folder + "/launcher.log";
};

TEST_F(LoggerTest, ThresholdsPerComponent) {
    const std::tuple<const char *, Logger::Level, bool> cases[] = {
        {"", Logger::LEVEL_WARNING, true},
        {"service_debug=7\n", Logger::LEVEL_DEBUG, true},
        {"launcher_debug=7\nService_debug=7\n", Logger::LEVEL_NOTE, false},
        {"default_component=7\n", Logger::LEVEL_NOTE, false},
        {"service_debug=all\n", Logger::LEVEL_ERROR, false},
        {"service_debug=7\n[rejected]\n", Logger::LEVEL_NOTE, false},
    };
    for (const auto &[levels, level, written] : cases) {
        std::ofstream(m_folder + "/launcher.debug") << levels;
        Logger::log_level.clear();
        ASSERT_EQ(Start(m_path, m_folder + "/launcher.debug"), 0);
        const auto before = fs::file_size(m_path);
        Log("text\n", level);
        EXPECT_EQ(fs::file_size(m_path) > before, written) << level << ": " << levels;
    }
}

TEST_F(LoggerTest, RotatesBeyondOneMebibyteOfItsOwn) {
    std::ofstream(m_path) << "from an earlier start\n";
    ASSERT_EQ(Start(m_path), 0);
    Log(ONE_MEBIBYTE);
    EXPECT_FALSE(fs::exists(Rotated(0)));
    Log("last\n");
    EXPECT_EQ(fs::file_size(Rotated(0)), 22 + LIMIT + STAMP + 5);
    EXPECT_EQ(Read(m_path), "");
    Log("new\n");
    EXPECT_EQ(AfterStamp(Read(m_path)), "new\n");
}

TEST_F(LoggerTest, DiscardsTheOldestOf49RotatedFiles) {
    for (int i = 0; i < 49; ++i)
        std::ofstream(Rotated(i)) << i;
    Log(ONE_BYTE_MORE);
    EXPECT_EQ(AfterStamp(Read(Rotated(0))), ONE_BYTE_MORE);
    for (int i = 1; i < 49; ++i)
        EXPECT_EQ(Read(Rotated(i)), std::to_string(i - 1));
    EXPECT_FALSE(fs::exists(Rotated(49)));
}

TEST_F(LoggerTest, FailedInitializeKeepsTheEarlierStream) {
    EXPECT_EQ(Start(m_folder), -1);
    Log(ONE_BYTE_MORE);
    Log("last\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + 1 + STAMP + 5);
}

TEST_F(LoggerTest, DropsMessagesAfterAFailedRotationUntilReload) {
    fs::remove(m_path);  // nothing there to rename
    Log(ONE_BYTE_MORE);
    Log("dropped\n");
    EXPECT_TRUE(fs::is_empty(m_folder));
    Logger::ReloadLogFile();
    Log(ONE_MEBIBYTE);
    Logger::ReloadLogFile();  // appends and counts from 0
    Log("more\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + STAMP + 5);
}

TEST_F(LoggerTest, LosesAndTearsNoMessageOfEightThreads) {
    constexpr int THREADS = 8, MESSAGES = 2500;
    const auto message = [](int t, int i) {
        return std::to_string(t) + " " + std::to_string(i) + std::string(200, char('a' + t));
    };
    std::vector<std::thread> threads;
    for (int t = 0; t < THREADS; ++t)
        threads.emplace_back([=] {
            for (int i = 0; i < MESSAGES; ++i)
                Log(message(t, i) + "\n");
        });
    for (std::thread &thread : threads)
        thread.join();
    std::stringstream lines;
    for (int i = 3; i >= 0; --i)
        lines << Read(Rotated(i));
    lines << Read(m_path);
    int count = 0, next[256] = {};
    for (std::string line; std::getline(lines, line); ++count) {
        const int t = AfterStamp(line)[0] - '0';
        ASSERT_EQ(AfterStamp(line), message(t, next[t & 255]++));
    }
    EXPECT_EQ(count, THREADS * MESSAGES);
}

}  // namespace
