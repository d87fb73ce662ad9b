// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

// Commands run in a folder of this process, none for more than 20 seconds of processor time.
// `client` makes Client.app anew.
const std::string kPrelude = R"(exec 2>&1; umask 022; unset SOURCE_DATE_EPOCH; export LC_ALL=C
    dir=${TMPDIR:-/tmp}/lumaris-pack-test.$PPID; mkdir -p $dir; cd $dir; ulimit -t 20
    tool=)" LUMARIS_PACK R"(; pack="$tool --build 121 --major 2 --minor 5"
    verify="$tool --verify out/package/lumaris.wpk"
    client() (
        rm -rf Client.app; mkdir -p Client.app/Contents; cd Client.app/Contents
        mkdir Library MacOS Resources; printf a >Library/a; echo '[Version]' >Resources/INFO
        printf '%s_version=%s\n' major 2 minor 5 build 121 icon_overlay 1 >>Resources/INFO
        printf '#!/bin/sh' >MacOS/lumaris-backup-ui; chmod 755 MacOS/lumaris-backup-ui
    )
)";

// What the commands print, and the status of the last one.
std::string Output(const std::string &commands) {
    FILE *const output = popen((kPrelude + commands + "\necho status $?").c_str(), "r");
    std::string text(1 << 16, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), output));
    pclose(output);
    return text;
}

// One line that begins with the name of the program, and the same files as before.
void ExpectError(const std::string &commands, const std::string &part, int status = 1) {
    // An archive given up halfway leaves the archive library's output buffer behind.
    const std::string text = Output("export ASAN_OPTIONS=detect_leaks=0; ls >.before; (" +
                                    commands + "); s=$?; ls | diff .before -; (exit $s)");
    EXPECT_EQ(text.rfind("lumaris-pack: ", 0), 0U) << commands << "\n" << text;
    EXPECT_NE(text.find(part), std::string::npos) << part << "\n" << text;
    EXPECT_EQ(text.substr(text.find('\n')), "\nstatus " + std::to_string(status) + "\n") << text;
}

struct LumarisPack : testing::Test {
    ~LumarisPack() override { Output("chmod -R u+rwx $dir; rm -rf $dir"); }
};

TEST_F(LumarisPack, StoresTheBundleAsTheLauncherNeedsIt) {
    // The bar is drawn on a terminal alone. A hard link would begin with an h; other owners or
    // times would stay in the line.
    EXPECT_EQ(Output(R"(client; mkdir out; (cd Client.app/Contents; printf - >Library-
        chmod 640 Library/a; ln Library/a Library/b; ln -s ../Resources Library/link
        chmod 555 Library; touch `printf Resources/%099d`)
        script -qec "$pack --filter none Client.app/ out/" /dev/null | grep -oE ' (0|100) %'
        cmp out/INFO Client.app/Contents/Resources/INFO; TZ=UTC tar -tvf out/package/lumaris.wpk |
        sed 's, 0/0  *[0-9]* 1970-01-01 00:00 Contents,,; s,00*,0,')"),
              R"( 0 %
 100 %
drwxr-xr-x/
drwxr-xr-x/Library/
-rw-r--r--/Library-
-rw-r-----/Library/a
-rw-r-----/Library/b
lrwxrwxrwx/Library/link -> ../Resources
drwxr-xr-x/MacOS/
drwxr-xr-x/Resources/
-rw-r--r--/Resources/0
-rwxr-xr-x/MacOS/lumaris-backup-ui
-rw-r--r--/Resources/INFO
status 0
)");
}

TEST_F(LumarisPack, TheSameFolderGivesTheSameBytes) {
    // Other times, another order in the folder, another time zone and locale. The time stored is
    // one that zip can hold: from 1980 on, and local.
    EXPECT_EQ(Output(R"(client; touch Client.app/Contents/Ü; export SOURCE_DATE_EPOCH=1000000000
        mkdir -p Copy.app/Contents/Resources; cp -Rp Client.app/. Copy.app
        find Copy.app -exec touch -h -d 2001-01-01 {} +
        for options in '' '--format zip' '--filter xz --level 0' '--filter none'; do
            rm -rf größe out; TZ=Asia/Tokyo $pack Client.app größe $options
            LC_ALL=C.UTF-8 TZ=America/New_York $pack Copy.app out $options
            $verify; cmp größe/package/lumaris.wpk out/package/lumaris.wpk
        done
        TZ=UTC tar -tvf out/package/lumaris.wpk | grep -c ' 2001-09-09 01:46 ')"),
              "8 entries; everything is under a checksum\n"
              "8 entries; contents are under checksums, names, types and permissions are not\n"
              "8 entries; everything is under a checksum\n"
              "8 entries; nothing is under a checksum\n8\nstatus 0\n");
}

TEST_F(LumarisPack, RefusesWhatTheLauncherCannotInstall) {
    const std::string cases[][2] = {
        {"rm MacOS/*", "'Contents/MacOS/lumaris-backup-ui' is missing"},
        {"ln -sf ../Library/a MacOS/lumaris-backup-ui", "backup-ui' is not a plain file"},
        {"sed -i /icon/d Resources/INFO",
         "has icon_overlay_version '', the package would have '1'"},
        {"ln -s /etc/passwd l", "'Contents/l' points to an absolute"},
        {"ln -s ./ here; ln -s here/../../x l", "'Contents/l' points out of the bundle"},
        {"ln -s l l", "'Contents/l' never arrives"},
        {"ln -s '\xff' l", "'Contents/l' points to a name that is not valid UTF-8"},
        {"chmod 4755 Library/a", "'Contents/Library/a' is set-uid"},
        {"mkfifo pipe", "'Contents/pipe' is neither"},
        {"touch '\xff\nx'", "'Contents/\\xff\\x0ax' is not valid UTF-8"},
        {"touch ._a", "'Contents/._a' is an AppleDouble file"},
    };
    for (const auto &[harm, line] : cases) {
        Output("client; cd Client.app/Contents; " + harm);
        ExpectError("$pack Client.app out", line);
    }
    for (const std::string arguments :
         {"--bogus", "--major -2", "--build 0121", "--minor ''", "--build 2147483648",
          "--format pax", "--filter gzip", "--level 20", "--level 0", "--format zip --filter xz",
          "--filter none --level 0", "more"}) {
        ExpectError("$pack Client.app out " + arguments, "", 2);
    }
}

TEST_F(LumarisPack, LeavesNothingBehindAndTouchesNothingThatExists) {
    // Empty space takes minutes to read. All files are listed when the temporary output is there.
    Output("client; truncate -s 100G Client.app/Contents/Library/a");
    const std::string begin =
        "f=Client.app/Contents/Library/a; timeout -s KILL 30 $pack Client.app out & p=$!; "
        "until ls -d out.* >/dev/null 2>&1 || ! kill -0 $p; do sleep .01; done; ";
    ExpectError(begin + "kill -TERM $p; wait $p", "interrupted");
    ExpectError(begin + "touch -d 2001-01-01 $f; wait $p", "'Contents/Library/a' changed while it");
    ExpectError(begin + "pkill -STOP -P $p; touch -r $f .f; truncate -s 1M $f; touch -r .f $f; " +
                    "pkill -CONT -P $p; wait $p",
                "'Contents/Library/a' changed while it was packed");
    Output("mkdir out; touch out/mine");
    ExpectError("$pack Client.app out", "the output 'out' exists");
    ExpectError("$pack Client.app Client.app/out", "lies in the client bundle");
}

TEST_F(LumarisPack, AnUnreadableFileAndAFullDiskAreErrors) {
    // The end of a file's allowance does what the end of the disk does, and cuts a block short too,
    // the only one when the package is small.
    Output("client; head -c 9M /dev/urandom >Client.app/Contents/Library/a");
    const std::string pack = "trap '' XFSZ; ulimit -f 99; $pack Client.app out --filter ";
    for (const std::string filter : {"none", "xz", "zstd --level 1"}) {
        ExpectError(pack + filter, "File too large");
    }
    ExpectError("truncate -s 100K Client.app/*/*/a; " + pack + "zstd", "File too large");
    // Root reads everything, so an ordinary user packs, who may not get at the program where it is.
    Output("client; chmod 0 Client.app/Contents/Library/a; chmod 777 .; cp $tool .");
    ExpectError(
        "[ $(id -u) != 0 ] || as='setpriv --reuid 65534 --regid 65534 --clear-groups'; "
        "$as ./${pack##*/} Client.app out",
        "read 'Contents/Library/a': Permission denied");
}

TEST_F(LumarisPack, VerifyNamesWhatTheLauncherWouldRefuse) {
    const std::string begin = R"(cd Client.app; p=../out/package/lumaris.wpk
        e=Contents/MacOS/lumaris-backup-ui i=Contents/Resources/INFO
        store() { LC_ALL=C.UTF-8 tar -H pax --no-recursion -cPf $p Contents ${e%/*} ${i%/*} "$@"; }
        pack() { (cd ..; rm -r out; $pack Client.app out "$@"); }
        )";
    const std::string cases[][2] = {
        {"pack --format zip; truncate -s -30 $p", "the directory at its end is damaged"},
        {"pack --filter none; truncate -s 700 $p", "entry 2 cannot be read"},
        {"pack --filter none; truncate -s 1536 $p", "'Contents/Library/a' has data that cannot"},
        {"store -b 900 $e $i; xz $p; head -c -1 $p.xz >$p", "cannot be read behind the last entry"},
        {"rm $p", "cannot be opened"},
        {"store /etc/passwd $e $i", "'/etc/passwd' is not a relative name"},
        {"touch x; store Contents/../x $e $i", "'Contents/../x' has an empty, '.' or '..' part"},
        {"ln x h; store x h $e $i", "'h' is a hard link"},
        {"mkdir -m 555 d; store d $e $i", "'d' is a folder that its owner"},
        {"ln -s ../x l; store l $e $i", "'l' points out of the bundle"},
        {"ln -s Contents m; touch m/x; store m m/x $e $i", "'m/x' does not come after"},
        {"store Contents/Resources $e $i", "'Contents/Resources' is there twice"},
        {"touch Ü; store Ü $e $i", "cannot be read: Pathname can't be converted"},
        {"store $i $e x", "the last entry is not 'Contents/Resources/INFO'"},
        {"store $e x $i", "the last entry but one is not 'Contents/MacOS/lumaris-backup-ui'"},
        {"chmod 644 $e; store $e $i; chmod 755 $e", "backup-ui' is not executable"},
    };
    Output("client; mkdir out");
    for (const auto &[make, line] : cases) {
        ExpectError(begin + make + "; cd ..; $verify", line);
    }
}

}  // namespace
