// SPDX-License-Identifier: MIT
// Follows the progress dialog on an Xvfb screen by its pixels, as a person would see it: prints
// "MILLISECONDS PERCENT" whenever the bar has moved, until a signal ends it. Saves the screen at 40
// percent or more to PICTURE, and at the end to END_PICTURE.
//
// usage: dialog-watch Xvfb_screen0 PICTURE.xwd [END_PICTURE.xwd]

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>

namespace {

/// The screen in the file that Xvfb writes for -fbdir: a header of big-endian words
/// (X11/XWDFile.h), the colours and the pixels, 32 bits each.
class Screen {
public:
    explicit Screen(const char *path) {
        const int file = open(path, O_RDONLY);
        struct stat st;
        if (file >= 0 && fstat(file, &st) == 0) {
            m_size = static_cast<size_t>(st.st_size);
            void *memory = mmap(nullptr, m_size, PROT_READ, MAP_SHARED, file, 0);
            m_data = memory == MAP_FAILED ? nullptr : static_cast<const unsigned char *>(memory);
        }
    }
    bool IsOpen() const { return m_data != nullptr && Word(11) == 32; }
    int Width() const { return static_cast<int>(Word(4)); }
    int Height() const { return static_cast<int>(Word(5)); }
    const unsigned char *Pixel(int x, int y) const {
        const size_t pixels = Word(0) + Word(19) * size_t(12);
        return m_data + pixels + size_t(y) * Word(12) + size_t(x) * 4;
    }
    /// The whole file, which is a picture in the XWD format.
    std::string Copy() const { return {reinterpret_cast<const char *>(m_data), m_size}; }

private:
    uint32_t Word(size_t index) const {
        const unsigned char *at = m_data + index * 4;
        return uint32_t(at[0]) << 24 | uint32_t(at[1]) << 16 | uint32_t(at[2]) << 8 | at[3];
    }
    const unsigned char *m_data = nullptr;
    size_t m_size = 0;
};

// Blue, green, red: the filled part is a blue with hardly any red in it, the rest is white.
bool IsFilled(const unsigned char *p) {
    return p[0] > 190 && p[2] < 70;
}
bool IsFree(const unsigned char *p) {
    return p[0] > 250 && p[1] > 250 && p[2] > 250;
}

/// How much of the bar is filled, in percent; -1 when there is no bar. The number on the bar
/// interrupts the rows in its middle, so the longest row counts, which is above the number.
int FilledPercent(const Screen &screen) {
    int longest = 100, percent = -1;
    for (int y = 0; y < screen.Height(); ++y) {
        int x = 0;
        while (x < screen.Width() && !IsFilled(screen.Pixel(x, y))) {
            ++x;
        }
        int filled = x;
        while (filled < screen.Width() && IsFilled(screen.Pixel(filled, y))) {
            ++filled;
        }
        int end = filled + 4;  // behind the edge of the filled part
        while (end < screen.Width() && IsFree(screen.Pixel(end, y))) {
            ++end;
        }
        if (end - x > longest) {
            longest = end - x;
            percent = (filled + 4 - x) * 100 / longest;
        }
    }
    return percent;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 3 && argc != 4) {
        fprintf(stderr, "usage: dialog-watch Xvfb_screen0 PICTURE.xwd [END_PICTURE.xwd]\n");
        return 2;
    }
    const Screen screen(argv[1]);
    if (!screen.IsOpen()) {
        fprintf(stderr, "dialog-watch: '%s' is no screen of 32 bits per pixel\n", argv[1]);
        return 1;
    }
    const auto start = std::chrono::steady_clock::now();
    bool saved = false;
    int ended = 0;  // how often in a row the bar was seen full
    std::string kept;
    for (int last = -1;; usleep(1000)) {
        const int percent = FilledPercent(screen);
        if (percent == last && percent >= 40 && !saved) {  // painted to the end by now
            std::ofstream(argv[2], std::ios::binary) << screen.Copy();
            saved = true;
        }
        // The last text comes some time after the bar is full. A copy is saved only if the bar is
        // still full 40 looks later: the very last screen may show the window half removed.
        ended = percent == 100 && argc == 4 ? ended + 1 : 0;
        if (ended % 100 == 50) {
            kept = screen.Copy();
        } else if (ended % 100 == 90) {
            std::ofstream(argv[3], std::ios::binary) << kept;
        }
        if (percent == last || percent < 0) {
            continue;
        }
        last = percent;
        const auto passed = std::chrono::steady_clock::now() - start;
        printf("%lld %d\n",
               static_cast<long long>(
                   std::chrono::duration_cast<std::chrono::milliseconds>(passed).count()),
               percent);
        fflush(stdout);
    }
}
