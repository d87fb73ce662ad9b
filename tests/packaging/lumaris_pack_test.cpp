// SPDX-License-Identifier: MIT
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace fs = std::filesystem;

namespace {

const std::string kExecutable = "Contents/MacOS/lumaris-backup-ui";
const std::string kInfo = "Contents/Resources/INFO";
const std::string kPackage = "out/package/lumaris.wpk";
const std::string kVerify = "LC_ALL=C.UTF-8 " LUMARIS_PACK " --verify " + kPackage;
// An archive given up halfway leaves the archive library's output buffer behind.
const std::string kAllowLeaks = "export ASAN_OPTIONS=detect_leaks=0; ";

std::string Read(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// What the launcher's reader finds in the package; a line for each entry, and one for a failure.
std::string Listing() {
    const std::unique_ptr<archive, decltype(&archive_read_free)> reader(archive_read_new(),
                                                                        archive_read_free);
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    archive_read_open_filename(reader.get(), kPackage.c_str(), 10240);
    std::string lines;
    archive_entry *entry = nullptr;
    int status = ARCHIVE_OK;
    while ((status = archive_read_next_header(reader.get(), &entry)) == ARCHIVE_OK) {
        const char *name = archive_entry_pathname(entry), *target = archive_entry_symlink(entry);
        lines += std::string(archive_entry_strmode(entry)) + (name != nullptr ? name : "no name") +
                 (target != nullptr ? std::string(" -> ") + target : "") + "\n";
    }
    return status == ARCHIVE_EOF ? lines : lines + archive_error_string(reader.get());
}

std::string Pack(const std::string &options = "--level 1",
                 const std::string &paths = "Client.app out") {
    return LUMARIS_PACK " --build 121 --major 2 --minor 5 " + options + " " + paths;
}

std::string InClient(const std::string &command) {
    return "(cd Client.app/Contents && " + command + "); ";
}

// Each test runs shell commands in a folder of its own, with nothing but a client in it.
class LumarisPack : public testing::Test {
protected:
    LumarisPack() {
        std::string pattern = testing::TempDir() + "lumaris-pack-XXXXXX";
        fs::current_path(mkdtemp(pattern.data()));
        m_dir = fs::current_path();
        fs::permissions(m_dir, fs::perms(0777));
        MakeClient();
    }
    ~LumarisPack() override {
        fs::current_path("/");
        fs::remove_all(m_dir);
    }

    void MakeClient() {
        const std::string files =
            "mkdir Library MacOS Resources; printf a >Library/a; chmod 640 Library/a; echo "
            "'#!/bin/sh' >MacOS/lumaris-backup-ui; chmod 755 MacOS/*; echo '[Version]\nmajor_"
            "version=2\nminor_version=5\nbuild_version=121\nicon_overlay_version=1' "
            ">Resources/INFO";
        ASSERT_EQ(Shell("rm -rf Client.app; mkdir -p Client.app/Contents; " + InClient(files)), 0);
    }

    // Standard output and standard error come back in m_text.
    int Shell(const std::string &command) {
        const std::string script = "umask 022; unset SOURCE_DATE_EPOCH; exec >log 2>&1; " + command;
        const int status = std::system(script.c_str());
        m_text = Read("log");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    // One line that begins with the name of the program, and no file or folder more than before.
    void ExpectError(const std::string &command, const std::string &part, int status = 1) {
        const auto count = [] { return std::distance(fs::directory_iterator("."), {}); };
        const auto before = count();
        EXPECT_EQ(Shell(command), status) << command;
        const auto at = m_text.find(part, m_text.rfind("lumaris-pack: ", 0));
        EXPECT_TRUE(at < m_text.size() && m_text.find('\n') + 1 == m_text.size()) << part + m_text;
        EXPECT_EQ(count(), before) << command;
    }

    fs::path m_dir;
    std::string m_text;
};

TEST_F(LumarisPack, StoresTheBundleAsTheLauncherNeedsIt) {
    const std::string long_name(120, 'n');
    const std::string more =
        "mkdir -m 555 Empty; printf - >Library-; cd Library; ln a b; ln -s missing gone; ln -s "
        "../Resources link; ln -s link/../../Contents up; cd ../Resources; printf 1 >\xc3\x9c; "
        "printf 2 >U\xcc\x88; chmod 700 U*; printf 3 >";
    ASSERT_EQ(Shell(InClient(more + long_name) + Pack("--filter none")), 0);
    EXPECT_EQ(m_text, "");
    // A hard link would begin with an h; other owners or times would stay in the line.
    Shell("LC_ALL=C TZ=UTC tar --quoting-style=literal -tvf " + kPackage +
          " | sed 's, 0/0  *[0-9]* 1970-01-01 00:00,,'");
    const std::string listing =
        "drwxr-xr-x Contents/\ndrwxr-xr-x Contents/Empty/\ndrwxr-xr-x Contents/Library/\n"
        "-rw-r--r-- Contents/Library-\n-rw-r----- Contents/Library/a\n"
        "-rw-r----- Contents/Library/b\nlrwxrwxrwx Contents/Library/gone -> missing\n"
        "lrwxrwxrwx Contents/Library/link -> ../Resources\n"
        "lrwxrwxrwx Contents/Library/up -> link/../../Contents\n"
        "drwxr-xr-x Contents/MacOS/\ndrwxr-xr-x Contents/Resources/\n"
        "-rwx------ Contents/Resources/U\xcc\x88\n-rw-r--r-- Contents/Resources/" +
        long_name + "\n-rw-r--r-- Contents/Resources/\xc3\x9c\n-rwxr-xr-x " + kExecutable +
        "\n-rw-r--r-- " + kInfo + "\n";
    EXPECT_EQ(m_text, listing);
    Shell("tar -xOf " + kPackage);
    EXPECT_EQ(m_text, "-aa231#!/bin/sh\n" + Read("Client.app/" + kInfo));
    EXPECT_EQ(Read("out/INFO"), Read("Client.app/" + kInfo));
    Shell(kVerify);
    EXPECT_EQ(m_text, "16 entries; nothing is under a checksum\n");
    // zip: the same in every locale, and without the directory at the end as well.
    ASSERT_EQ(Shell("rm -r out; LC_ALL=C.UTF-8 " + Pack("--format zip")), 0) << m_text;
    const auto size = fs::file_size(kPackage);
    for (const unsigned missing : {0U, 1U, 22U, 500U}) {
        fs::resize_file(kPackage, size - missing);
        for (const char *const locale : {"C.UTF-8", "C"}) {
            ASSERT_NE(std::setlocale(LC_ALL, locale), nullptr);
            EXPECT_EQ(Listing(), listing) << locale << " " << missing;
        }
    }
    EXPECT_EQ(Shell("script -qec '" + Pack("", "Client.app again") + "' /dev/null"), 0) << m_text;
    EXPECT_NE(m_text.find("100 %"), std::string::npos) << m_text;
}

TEST_F(LumarisPack, TheSameFolderGivesTheSameBytes) {
    // Other times, another order in the folder, another time zone and locale. The time stored is
    // one that zip can hold: from 1980 on, and local.
    ASSERT_EQ(Shell(InClient("head -c 300000 /dev/zero >Resources/\xc3\x9c") +
                    "mkdir -p Copy.app/Contents/Resources; cp -Rp Client.app/. Copy.app;"
                    "find Copy.app -exec touch -h -d 2001-01-01 {} +"),
              0);
    for (const std::string options : {"", "--format zip", "--filter xz", "--filter none"}) {
        EXPECT_EQ(
            Shell("export SOURCE_DATE_EPOCH=1000000000; rm -rf out first; "
                  "LC_ALL=C.UTF-8 TZ=Asia/Tokyo " +
                  Pack(options) + " && " + kVerify + " && mv out first && TZ=America/New_York " +
                  Pack(options, "Copy.app out") + " && cmp first/package/* " + kPackage),
            0)
            << options << m_text;
    }
    EXPECT_EQ(Shell("TZ=UTC tar -tvf " + kPackage + " | grep -v ' 2001-09-09 01:46 '"), 1)
        << "another time than the one asked for: " << m_text;
}

TEST_F(LumarisPack, RefusesWhatTheLauncherCannotInstall) {
    const std::pair<std::string, std::string> cases[] = {
        {"rm MacOS/*", "'" + kExecutable + "' is missing"},
        {"chmod 655 MacOS/*", "'" + kExecutable + "' is not executable"},
        {"ln -sf ../Library/a MacOS/lumaris-backup-ui", "'" + kExecutable + "' is not a plain"},
        {"rm Resources/INFO", "'" + kInfo + "' is missing"},
        {"sed -i s/121/12/ Resources/INFO", "has build_version '12', the package would have '121'"},
        {"sed -i /icon/d Resources/INFO", "has icon_overlay_version ''"},
        {"echo 'x=@Variant(' >>Resources/INFO", "'" + kInfo + "' holds a serialized object"},
        {"ln -s /etc/passwd l", "'Contents/l' points to an absolute"},
        {"ln -s ../Client.app/Contents ../l", "'l' points out of the bundle"},
        {"ln -s . here; ln -s here/../../x l", "'Contents/l' points out of the bundle"},
        {"ln -s l l", "'Contents/l' never arrives"},
        {"chmod 4755 Library/a", "'Contents/Library/a' is set-uid"},
        {"chmod 1755 Library", "'Contents/Library' is set-uid, set-gid or sticky"},
        {"mkfifo pipe", "'Contents/pipe' is neither"},
        {"touch '\xff\nx'", "'Contents/\\xff\\x0ax' is not valid UTF-8"},
        {"touch ._a", "'Contents/._a' is an AppleDouble file"},
    };
    for (const auto &[harm, line] : cases) {
        MakeClient();
        ExpectError(InClient(harm) + Pack(), line);
    }
    MakeClient();
    for (const std::string arguments :
         {"--bogus", "--build 12x", "--major -2", "--build 0121", "--minor ''",
          "--build 4294967296", "--format pax", "--filter gzip", "--level 20", "--level x",
          "--format zip --filter xz", "--filter none --level 1", "Client.app"}) {
        ExpectError(Pack(arguments), "", 2);
    }
}

TEST_F(LumarisPack, TouchesNoOutputThatExists) {
    EXPECT_EQ(Shell("mkdir out; " + Pack()), 0) << m_text;  // empty is fine
    const std::string before = Read(kPackage);
    ExpectError("echo b >Client.app/Contents/Library/a; " + Pack(), "'out' exists");
    EXPECT_TRUE(before == Read(kPackage));
    ExpectError(Pack("", "Client.app Client.app/out"), "lies in the client bundle");
    EXPECT_FALSE(fs::exists("Client.app/out"));
}

TEST_F(LumarisPack, StoppedHalfwayItLeavesNothingBehind) {
    // Empty space takes minutes to read. All files are listed when the temporary output is there.
    const std::string begin =
        kAllowLeaks + "f=Client.app/Contents/Library/a; truncate -s 100G $f; timeout -s KILL 30 " +
        Pack() + " & p=$!; until ls -d out.* >/dev/null 2>&1 || ! kill -0 $p; do sleep .01; done; ";
    for (const std::string event : {"echo >>$f", "truncate -s 1M $f", "touch -d 2001-01-01 $f"}) {
        ExpectError(begin + event + "; wait $p", "'Contents/Library/a' changed while it was");
    }
    ExpectError(begin + "kill -TERM $p; wait $p", "interrupted");
}

TEST_F(LumarisPack, AnUnreadableFileAndAFullDiskAreErrors) {
    const std::string user =
        geteuid() == 0 ? "setpriv --reuid 65534 --regid 65534 --clear-groups " : "";
    if (Shell(user + LUMARIS_PACK " --help") == 0) {  // where that user can start the program
        ExpectError(kAllowLeaks + InClient("chmod 0 Library/a") + user + Pack(),
                    "cannot read 'Contents/Library/a': Permission denied");
    }
    if (Shell("mkdir disk; mount -t tmpfs -o size=64k tmpfs disk") != 0) {
        GTEST_SKIP() << "a small file system cannot be mounted: " << m_text;
    }
    ExpectError(kAllowLeaks + InClient("chmod 644 Library/a; truncate -s 1M Library/a") +
                    Pack("--filter none", "Client.app disk/out"),
                "No space left on device");
    EXPECT_TRUE(fs::is_empty("disk"));
    EXPECT_EQ(Shell("umount disk"), 0) << m_text;
}

TEST_F(LumarisPack, VerifyNamesWhatTheLauncherWouldRefuse) {
    // "tar" stores the folders and what else is named; "put" that, the executable and INFO.
    const std::string begin =
        "mkdir -p out/package; cd Client.app; e=" + kExecutable + " i=" + kInfo +
        "; tar() { LC_ALL=C.UTF-8 command tar --format=pax --no-recursion -cPf ../" + kPackage +
        " Contents Contents/MacOS Contents/Resources \"$@\"; }; put() { tar \"$@\" $e $i; }; ";
    const std::pair<std::string, std::string> cases[] = {
        {"put /etc/passwd", "'/etc/passwd' is not a relative name"},
        {"touch x; put Contents/../x", "'Contents/../x' has an empty, '.' or '..' part"},
        {"touch g; ln g h; put g h", "'h' is a hard link"},
        {"touch s; chmod 2755 s; put s", "'s' is set-uid"},
        {"mkfifo p; put p", "'p' is neither"},
        {"mkdir -m 555 d; put d", "'d' is a folder that its owner"},
        {"ln -s ../x l; put l", "'l' points out of the bundle"},
        {"ln -s Contents m; touch m/x; put m m/x", "'m/x' does not come after"},
        {"put Contents/Resources", "'Contents/Resources' is there twice"},
        {"touch \xc3\x9c; put \xc3\x9c", "Pathname can't be converted"},
        {"tar $i $e", "the last entry is not '" + kInfo},
        {"tar $e x $i", "the last entry but one is not '" + kExecutable},
        {"chmod 644 $e; put", "'" + kExecutable + "' is not executable"},
        {"echo 'x=@Variant(' >>$i; put", "'" + kInfo + "' holds a serialized object"},
    };
    for (const auto &[make, line] : cases) {
        EXPECT_EQ(Shell(begin + make + "; cd ..; " + kVerify), 1) << make;
        EXPECT_NE(m_text.find(line), std::string::npos) << line + m_text;
    }
    // The default notices one flipped bit and one missing byte, wherever it is.
    MakeClient();
    ASSERT_EQ(Shell("rm -r out; " + Pack() + " && " + kVerify), 0) << m_text;
    EXPECT_EQ(m_text, "7 entries; everything is under a checksum\n");
    const std::string packed = Read(kPackage);
    for (std::size_t i = 0; i < packed.size(); i += 1 + packed.size() / 20) {
        std::string flipped = packed;
        flipped[i] ^= 1;
        std::ofstream(kPackage) << flipped;
        EXPECT_EQ(Shell(kVerify), 1) << i;
        std::ofstream(kPackage) << packed.substr(0, packed.size() - 1 - i);
        EXPECT_EQ(Shell(kVerify), 1) << i << " from the end";
    }
    // zip notices it in the content, and only where the data is read. A cut directory matters for a
    // zip of other programs: it alone holds types and permissions.
    ASSERT_EQ(Shell("rm -r out; " + InClient("seq 20000 >Library/a") + Pack("--format zip")), 0);
    std::string zip = Read(kPackage);
    zip[zip.find("Library/a") + 500] ^= 1;
    std::ofstream(kPackage) << zip;
    ExpectError(kVerify, "'Contents/Library/a' has data that cannot be read");
    EXPECT_EQ(Shell("truncate -s -30 " + kPackage + "; " + kVerify), 1);
    EXPECT_NE(m_text.find("the directory at its end is damaged"), std::string::npos) << m_text;
    EXPECT_EQ(Shell("rm -r out; " + Pack("--filter none")), 0) << m_text;
    for (const std::string size : {"50000", "512", "0"}) {
        EXPECT_EQ(Shell("truncate -s " + size + " " + kPackage + "; " + kVerify), 1) << size;
    }
    ExpectError("rm " + kPackage + "; " + kVerify, "cannot be opened");
}

}  // namespace
