// Whole-file writes that leave either the old file or the new one.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "scenario/atomic_write.h"
#include "temp_dir.h"

using hosttest::FolderEntries;
using hosttest::ReadText;
using hosttest::TempDir;
using hosttest::WriteText;
using hullhost::WriteFileAtomically;

TEST(AtomicWriteTest, WritesAndReplacesWithoutLeftoversAndOrdinaryPermissions) {
    TempDir dir;
    const std::string file = dir / "out.json";
    WriteFileAtomically(file, "first");
    EXPECT_EQ(ReadText(file), "first");
    WriteFileAtomically(file, std::string(1 << 20, 'x'));
    EXPECT_EQ(ReadText(file).size(), 1u << 20);
    WriteFileAtomically(file, "");
    EXPECT_EQ(ReadText(file), "");
    EXPECT_EQ(FolderEntries(dir.Path().string()), std::vector<std::string>{"out.json"});
    // A new file gets ordinary permissions, not those of a temporary file.
    mode_t old = ::umask(022);
    WriteFileAtomically(dir / "new.scn", "text");
    ::umask(old);
    struct stat st {};
    ASSERT_EQ(::stat((dir / "new.scn").c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0644u);
}

TEST(AtomicWriteTest, FailureThrowsAndLeavesNoHalfFile) {
    TempDir dir;
    // No such folder.
    EXPECT_THROW(WriteFileAtomically(dir / "missing/out.scn", "text"), std::runtime_error);
    // The target is a folder: the rename fails after the text was written.
    std::filesystem::create_directory(dir / "taken");
    WriteText(dir / "taken/inside", "keep");
    try {
        WriteFileAtomically(dir / "taken", "text");
        FAIL() << "no error";
    } catch (const std::runtime_error &e) {
        EXPECT_NE(std::string(e.what()).find("taken"), std::string::npos) << e.what();
    }
    EXPECT_EQ(ReadText(dir / "taken/inside"), "keep");
    EXPECT_EQ(FolderEntries(dir.Path().string()), std::vector<std::string>{"taken"});
}
