// Bytes as a key=value file: what `Config` reads is what a second, independent reading of the
// grammar finds, and a rejected file leaves nothing.

#include "config.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <map>
#include <memory>
#include <string_view>

#include "fuzz-support.h"

namespace {

using Entries = std::map<std::string, std::string>;

const std::string kBlanks = "\t\n\v\f\r ";
const std::string kKeyCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-.";
const std::string kControls = [] {
    std::string all = "\x7f";
    for (char c = 0; c < ' '; ++c) {
        all += c;
    }
    return all;
}();

std::string_view Cut(std::string_view &line, size_t n) {
    const std::string_view head = line.substr(0, n);
    line.remove_prefix(head.size());
    return head;
}

/// What `parse` is to make of a line.
int Parse(std::string_view line, std::string &key, std::string &value) {
    Cut(line, line.find_first_not_of(kBlanks));
    key = Cut(line, line.find_first_not_of(kKeyCharacters));
    if (line.empty() || line[0] == '#') {
        return 1;
    }
    Cut(line, line.find_first_not_of(kBlanks));
    if (Cut(line, 1) != "=") {
        return 2;
    }
    Cut(line, line.find_first_not_of(kBlanks));
    if (line.empty()) {
        return 2;
    }
    if (line[0] == '"' || line[0] == '\'') {
        const std::string_view quote = Cut(line, 1);
        value = Cut(line, line.find_first_of(kControls + quote[0]));
        if (Cut(line, 1) != quote) {
            return 2;
        }
    } else {
        value = Cut(line, line.find_first_of(kControls + ' '));
    }
    Cut(line, line.find_first_not_of(kBlanks));
    return line.empty() || line[0] == '#' ? 0 : 2;
}

/// `parse` on a line of its own buffer, so that a byte read behind its end shows.
int ParseLine(const std::string &line, Entries &entries) {
    const std::string buffer = line.c_str();  // a line ends at its first NUL
    const std::unique_ptr<char, decltype(&free)> own(strdup(buffer.c_str()), free);
    ustring key("untouched"), value("untouched");
    std::string wantedKey, wantedValue;
    const int wanted = Parse(buffer, wantedKey, wantedValue);
    MUST(Config().parse(own.get(), static_cast<int>(buffer.size()), key, value) == wanted);
    if (wanted == 0) {
        MUST(key.c_str() == wantedKey && value.c_str() == wantedValue);
        entries[wantedKey] = wantedValue;
    } else {
        MUST(key == "untouched" && value == "untouched");
    }
    return wanted;
}

/// A whole file line by line; false when it is to be rejected.
bool ParseFile(const std::string &text, Entries &entries) {
    for (size_t pos = 0; pos < text.size();) {
        const size_t end = std::min(text.find('\n', pos), text.size() - 1) + 1;
        const size_t n = std::min<size_t>(end - pos, 8191);
        if (ParseLine(text.substr(pos, n), entries) == 2) {
            return false;
        }
        pos += n;
    }
    return true;
}

void MustHold(Config &config, const Entries &entries) {
    MUST(config.size() == entries.size());
    for (const auto &[key, value] : entries) {
        const auto found = config.find(key);
        MUST(found != config.end() && found->second == value);
        const long number = strtol(value.c_str(), nullptr, 10);
        MUST(config.get_int(key) == std::clamp<long>(number, INT_MIN, INT_MAX));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const std::string text = Bytes(data, size);
    const fs::path file = OwnFolder() / "file", earlier = OwnFolder() / "earlier";
    if (!fs::exists(earlier)) {
        WriteFile(earlier, "earlier key=1");  // malformed: leaves nothing
    }
    WriteFile(file, text);

    Entries entries = {{"earlier", "1"}};
    Config config;
    config["earlier"] = "1";
    const bool good = ParseFile(text, entries);
    MUST(config.read(file.c_str()) == (good ? 0 : -1));
    MustHold(config, good ? entries : Entries());
    MUST(config.read(earlier.c_str()) == -1 && config.empty());
    return 0;
}
