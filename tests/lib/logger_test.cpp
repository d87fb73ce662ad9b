// SPDX-License-Identifier: MIT
#include "logger.h"

#include <future>

#include "test-support.h"

namespace {

constexpr size_t STAMP = sizeof("Jan 31 23:59:59 ") - 1, LIMIT = 1048576;
const std::string FILLS_THE_LOG(LIMIT - STAMP, 'x');  // an empty one; a byte more rotates

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
        setenv("TZ", "UTC", 1);
        tzset();
        setenv("TZ", "Asia/Tokyo", 1);  // while the process runs
    }
    int Start(const fs::path &path, Logger::Type type = Logger::TYPE_FILE) {
        return Logger::Initialize(type, path.c_str(), (root / "levels").c_str(), 9);
    }
    fs::path Rotated(int index) { return root / ("log_" + std::to_string(index)); }

    const fs::path log = root / "log";
};

TEST_F(LoggerTest, ThresholdsPerComponent) {
    const struct {
        const char *what, *levels;
        Logger::Level level;
        bool written;
    } cases[] = {
        // in this order: a level stays
        {"a warning by default", "", Logger::LEVEL_WARNING, true},
        {"names in another letter case", "Service_debug=7\n", Logger::LEVEL_NOTE, false},
        {"what the file asks for", "service_debug=7\n", Logger::LEVEL_DEBUG, true},
        {"what the file before asked for stays", "", Logger::LEVEL_DEBUG, true},
        {"no number is level 0", "service_debug=all\n", Logger::LEVEL_ERROR, false},
    };
    Logger::log_level.clear();
    for (const auto &row : cases) {
        WriteFile(root / "levels", row.levels);
        testing::internal::CaptureStdout();
        EXPECT_EQ(Start("", Logger::TYPE_STDOUT), 0);
        Write("text", row.level);
        EXPECT_EQ(testing::internal::GetCapturedStdout() != "", row.written) << row.what;
    }
}

TEST_F(LoggerTest, RotatesBeyondOneMebibyte) {
    for (int i = 0; i < 8; ++i) {
        WriteFile(Rotated(i), std::to_string(i));
    }
    EXPECT_EQ(Start(log), 0);
    Write(FILLS_THE_LOG);
    EXPECT_EQ(ReadFile(Rotated(0)), "0");
    Write("last\n");
    EXPECT_EQ(fs::file_size(Rotated(0)), LIMIT + STAMP + sizeof("last\n") - 1);
    for (int i = 1; i < 8; ++i) {
        EXPECT_EQ(ReadFile(Rotated(i)), std::to_string(i - 1));
    }
    EXPECT_FALSE(fs::exists(Rotated(8))) << "more than nine, with the current one";
    Write("new\n");
    Write(FILLS_THE_LOG.substr(STAMP + sizeof("new\n") - 1));  // less that line: full again
    EXPECT_EQ(fs::file_size(log), LIMIT) << "the count did not start anew";
}

TEST_F(LoggerTest, AFailedStartKeepsTheEarlierStream) {
    EXPECT_EQ(Start(root), -1) << "a folder";
    Write("text\n");
    EXPECT_EQ(AfterStamp(Log()), "text\n");
}

TEST_F(LoggerTest, ReopeningLeavesNoDescriptorOpen) {
    const int lowest = fileno(Logger::log_fp);
    EXPECT_EQ(Logger::Rotate(), 0);
    Logger::ReloadLogFile();
    EXPECT_EQ(fileno(Logger::log_fp), lowest);
}

TEST_F(LoggerTest, ReloadingMendsAFailedRotation) {
    fs::remove(log);  // leaves nothing to rotate
    EXPECT_EQ(Logger::Rotate(), -1);
    Write("dropped\n");
    Logger::ReloadLogFile();
    Write("written\n");
    EXPECT_EQ(AfterStamp(ReadFile(log)), "written\n");
}

TEST_F(LoggerTest, MessagesOfEightThreadsStayWhole) {
    std::map<std::string, int> expected, written;
    std::vector<std::future<void>> threads;
    for (const char letter : std::string("abcdefgh")) {
        const std::string text(100, letter);
        expected[text] = 4000;
        threads.push_back(std::async(std::launch::async, [text] {
            for (int i = 0; i < 4000; ++i) {
                Write(text + "\n");
            }
        }));
    }
    threads.clear();  // waits for them
    // 3.7 MB to the log of the fixture are three rotations.
    for (const fs::path &path : {log, Rotated(0), Rotated(1), Rotated(2)}) {
        std::ifstream file(path);
        for (std::string line; std::getline(file, line);) {
            ++written[line.erase(0, STAMP)];
        }
    }
    EXPECT_EQ(written, expected);
}

}  // namespace
