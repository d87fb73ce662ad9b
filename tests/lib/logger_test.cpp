#include "logger.h"

#include <ctime>
#include <sstream>
#include <thread>
#include <tuple>

#include "../support/test-support.h"

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
    EXPECT_EQ(ReadFile(m_path), "");
    Log("new\n");
    EXPECT_EQ(AfterStamp(ReadFile(m_path)), "new\n");
}

TEST_F(LoggerTest, DiscardsTheOldestOf49RotatedFiles) {
    for (int i = 0; i < 49; ++i) {
        std::ofstream(Rotated(i)) << i;
    }
    Log(ONE_BYTE_MORE);
    EXPECT_EQ(AfterStamp(ReadFile(Rotated(0))), ONE_BYTE_MORE);
    for (int i = 1; i < 49; ++i) {
        EXPECT_EQ(ReadFile(Rotated(i)), std::to_string(i - 1));
    }
    EXPECT_FALSE(fs::exists(Rotated(49)));
}

TEST_F(LoggerTest, FailedInitializeKeepsTheEarlierStream) {
    EXPECT_EQ(Start(m_folder), -1);
    Log(ONE_BYTE_MORE);
    Log("last\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + 1 + STAMP + 5);
}

TEST_F(LoggerTest, ReloadAppendsAndCountsFromZero) {
    Log(ONE_MEBIBYTE);
    Logger::ReloadLogFile();
    Log("more\n");
    EXPECT_EQ(fs::file_size(m_path), LIMIT + STAMP + 5);
}

TEST_F(LoggerTest, DropsMessagesAfterAFailedRotationUntilReload) {
    const auto check = [this](const std::function<void()> &mend) {
        Log(ONE_BYTE_MORE);
        Log("dropped\n");
        EXPECT_EQ(Logger::log_fp, nullptr);
        mend();
        Logger::ReloadLogFile();
        Log("written\n");
        const std::string text = ReadFile(m_path);
        EXPECT_EQ(text.find("dropped"), text.npos);
        ASSERT_GE(text.size(), STAMP + 8);
        EXPECT_EQ(AfterStamp(text.substr(text.size() - STAMP - 8)), "written\n");
    };
    fs::remove(m_path);
    check([] {});
    for (int i = 0; i < 50; ++i) {  // a single free name would be shifted down to log_0
        fs::create_directories(Rotated(i) + "/full");
    }
    check([] {});
    fs::remove_all(m_folder);
    check([this] { fs::create_directory(m_folder); });
    fs::permissions(m_path, fs::perms(0666));
    fs::permissions(m_folder, fs::perms(0555));
    Apart([&] { check([] {}); });
    fs::permissions(m_folder, fs::perms(0700));
}

TEST_F(LoggerTest, KeepsTheNewestMessagesOfEightThreadsWhole) {
    constexpr int THREADS = 8, MESSAGES = 25000, LONGEST = 3000;  // 60 MiB: more than is kept
    const auto message = [](int t, int i) {
        return std::to_string(t) + " " + std::to_string(i) + " " +
               std::string(size_t(i % 17 == 0 ? LONGEST : i % 200), char('a' + t));
    };
    std::vector<std::thread> threads;
    for (int t = 0; t < THREADS; ++t) {
        threads.emplace_back([=] {
            for (int i = 0; i < MESSAGES; ++i) {
                Log(message(t, i) + "\n");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(50, std::distance(fs::directory_iterator(m_folder), {}));
    int count = 0, torn = 0, next[THREADS] = {};
    for (int file = 48; file >= -1; --file) {
        const std::string text = ReadFile(file < 0 ? m_path : Rotated(file));
        EXPECT_TRUE(file < 0 || (text.size() > LIMIT && text.size() < LIMIT + LONGEST + 50));
        std::stringstream lines(text);
        for (std::string line; std::getline(lines, line); ++count) {
            int t = -1, i = -1;
            sscanf(AfterStamp(line).c_str(), "%d %d", &t, &i);
            const bool follows = t >= 0 && t < THREADS && (next[t] == 0 || next[t] == i);
            if (follows && AfterStamp(line) == message(t, i)) {
                next[t] = i + 1;
            } else {
                ++torn;
            }
        }
    }
    EXPECT_EQ(0, torn);
    EXPECT_LT(count, THREADS * MESSAGES);
    EXPECT_EQ(std::vector<int>(THREADS, MESSAGES), std::vector<int>(next, next + THREADS));
    printf(
        "logger under pressure: %d messages by %d threads, the newest %d kept in 50 files, "
        "%d lost or torn\n",
        THREADS * MESSAGES, THREADS, count, torn);
}

}  // namespace
