#include "platform/files/files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/scratch_folder.h"

namespace pantrigo {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

TEST(Files, JoinsWithOneSeparator) {
  const std::string separator(1, static_cast<char>(fs::path::preferred_separator));
  EXPECT_EQ(Files::join("folder", "file"), "folder" + separator + "file");
  EXPECT_EQ(Files::join("folder/", "file"), "folder/file");
  EXPECT_EQ(Files::join("C:\\", "file"), "C:\\file");
  EXPECT_EQ(Files::join("/", "file"), "/file");
  EXPECT_EQ(Files::join("", "file"), "file");
}

TEST(Files, ResolvesAgainstItsOwnFolder) {
  const ScratchFolder scratch;
  scratch.write("Sub/One.txt", "1");
  const Files files(scratch.path());
  EXPECT_EQ(files.resolve("Sub/One.txt"), scratch.path() / "Sub" / "One.txt");
  EXPECT_EQ(files.resolve("sub\\ONE.TXT"), scratch.path() / "Sub" / "One.txt");
  EXPECT_EQ(files.resolve("sub\\\\one.txt"), scratch.path() / "Sub" / "One.txt");
  EXPECT_EQ(files.resolve("SUB\\New.txt"), scratch.path() / "Sub" / "New.txt");
  EXPECT_EQ(files.resolve((scratch.path() / "sub" / "one.txt").string()), scratch.path() / "Sub" / "One.txt");
  EXPECT_EQ(files.resolve("none/x"), scratch.path() / "none" / "x");
}

TEST(Files, PrefersTheExactSpelling) {
  const ScratchFolder scratch;
  scratch.write("A.BMP", "upper");
  scratch.write("a.bmp", "lower");
  const Files files(scratch.path());
  EXPECT_EQ(files.readBytes("a.bmp"), "lower");
  EXPECT_EQ(files.readBytes("A.BMP"), "upper");
  EXPECT_EQ(files.readBytes("a.BMP"), "upper");
  EXPECT_EQ(files.Dir("a.bmp"), "a.bmp");
}

TEST(Files, FindsAccentedNamesWithoutCase) {
  const ScratchFolder scratch;
  scratch.write("Crème.txt", "c");
  EXPECT_EQ(Files(scratch.path()).Dir("CRÈME.TXT"), "Crème.txt");
}

TEST(Files, ChangesOnlyTheFolderOfTheRun) {
  const ScratchFolder scratch;
  scratch.write("Sub/One.txt", "1");
  const fs::path processFolder = fs::current_path();
  Files files(scratch.path());
  files.changeFolder("sub\\");
  EXPECT_EQ(files.currentFolder(), scratch.path() / "Sub");
  EXPECT_EQ(files.Dir("one.txt"), "One.txt");
  files.changeFolder("..");
  EXPECT_EQ(files.currentFolder(), scratch.path());
  EXPECT_EQ(errorOf([&] { files.changeFolder("nowhere"); }), 76);
  EXPECT_EQ(errorOf([&] { files.changeFolder("Sub/One.txt"); }), 76);
  EXPECT_EQ(files.currentFolder(), scratch.path());
  EXPECT_EQ(fs::current_path(), processFolder);
}

TEST(Files, ListsMatchesSortedWithoutCase) {
  const ScratchFolder scratch;
  for (const char* const name : {"b.txt", "A.TXT", "c.bmp", "noending", ".hidden.txt", "sub/d.txt"})
    scratch.write(name, "");
  fs::create_directory(scratch.path() / "folder.txt");
  const Files files(scratch.path());
  EXPECT_EQ(files.matching("*.txt"), (Names{"A.TXT", "b.txt"}));
  EXPECT_EQ(files.matching("*.*"), (Names{"A.TXT", "b.txt", "c.bmp", "noending"}));
  EXPECT_EQ(files.matching("?.b*"), (Names{"c.bmp"}));
  EXPECT_EQ(files.matching("SUB\\*"), (Names{"d.txt"}));
  EXPECT_EQ(files.matching("C.BMP"), (Names{"c.bmp"}));
  EXPECT_EQ(files.matching("folder.txt"), Names{});
  EXPECT_EQ(files.matching(".hidden.txt"), Names{});
  EXPECT_EQ(files.matching(""), Names{});
  EXPECT_EQ(files.matching("sub/"), Names{});
  EXPECT_EQ(files.Dir("*.txt"), "A.TXT");
  EXPECT_EQ(files.Dir("nowhere/*.txt"), "");
  EXPECT_EQ(files.Dir("*.gif"), "");
}

TEST(Files, MatchesMasks) {
  struct Row {
    const char* mask;
    const char* name;
    bool matches;
  };
  const Row rows[] = {
      {"*.txt", "a.TXT", true},
      {"*.txt", "a.txt.bak", false},
      {"a*b*c", "aXbYbZc", true},
      {"a*b*c", "aXbYbZ", false},
      {"?", "é", true},
      {"??", "a", false},
      {"a?c", "abc", true},
      {"***", "abc", true},
      {"*a", "aaab", false},
      {"*aab", "aaaab", true},
      {"[ab].txt", "a.txt", false},
      {"*.*", "noending", true},
      {"*.b*", "noending", false},
      {"a", "ab", false},
      {"É*", "école", true},
  };
  for (const Row& row : rows) {
    const ScratchFolder scratch;
    scratch.write(row.name, "");
    EXPECT_EQ(Files(scratch.path()).Dir(row.mask), row.matches ? row.name : "") << row.mask << " | " << row.name;
  }
}

TEST(Files, KillsAllMatches) {
  const ScratchFolder scratch;
  for (const char* const name : {"1.BMP", "1a.BMP", "2.BMP", "1.txt"}) scratch.write(name, "x");
  const Files files(scratch.path());
  files.Kill("1*.bmp");
  EXPECT_EQ(files.matching("*"), (Names{"1.txt", "2.BMP"}));
  files.Kill("2.bmp");
  EXPECT_EQ(files.matching("*"), (Names{"1.txt"}));
  EXPECT_EQ(errorOf([&] { files.Kill("2.bmp"); }), 53);
  EXPECT_EQ(errorOf([&] { files.Kill("*.gif"); }), 53);
  EXPECT_EQ(errorOf([&] { files.Kill("nowhere/*"); }), 53);
  EXPECT_EQ(errorOf([&] { files.Kill(""); }), 53);
}

TEST(Files, KillsTheExactSpellingOnly) {
  const ScratchFolder scratch;
  scratch.write("7.BMP", "upper");
  scratch.write("7.bmp", "lower");
  const Files files(scratch.path());
  files.Kill("7.bmp");
  EXPECT_EQ(files.matching("*"), (Names{"7.BMP"}));
}

TEST(Files, RefusesToKillAReadOnlyFile) {
  const ScratchFolder scratch;
  scratch.write("kept.txt", "x");
  fs::permissions(scratch.path() / "kept.txt", fs::perms::owner_read);
  const Files files(scratch.path());
  EXPECT_EQ(errorOf([&] { files.Kill("kept.txt"); }), 75);
  EXPECT_EQ(files.Dir("kept.txt"), "kept.txt");
}

TEST(Files, CopiesByteForByte) {
  const ScratchFolder scratch;
  const std::string bytes("\0\r\n\x1A\xFF", 5);
  scratch.write("a.bin", bytes);
  scratch.write("B.bin", "a longer old content");
  const Files files(scratch.path());
  files.FileCopy("A.BIN", "b.BIN");
  EXPECT_EQ(files.readBytes("B.bin"), bytes);
  EXPECT_EQ(files.matching("*"), (Names{"a.bin", "B.bin"}));
  EXPECT_EQ(errorOf([&] { files.FileCopy("none.bin", "c.bin"); }), 53);
  EXPECT_EQ(errorOf([&] { files.FileCopy("nowhere/a.bin", "c.bin"); }), 76);
  EXPECT_EQ(errorOf([&] { files.FileCopy("a.bin", "nowhere/c.bin"); }), 76);
  EXPECT_EQ(errorOf([&] { files.FileCopy("a.bin", "a.bin"); }), 75);
  fs::create_directory(scratch.path() / "folder");
  EXPECT_EQ(errorOf([&] { files.FileCopy("a.bin", "folder"); }), 75);
  EXPECT_EQ(errorOf([&] { files.FileCopy("folder", "d.bin"); }), 75);
}

TEST(Files, MakesACopyOfAReadOnlyFileWritable) {
  const ScratchFolder scratch;
  scratch.write("medium.bmp", "x");
  fs::permissions(scratch.path() / "medium.bmp", fs::perms::owner_read);
  const Files files(scratch.path());
  files.FileCopy("medium.bmp", "own.bmp");
  files.Kill("own.bmp");
  EXPECT_EQ(files.matching("*"), (Names{"medium.bmp"}));
}

TEST(Files, ReadsAllBytes) {
  const ScratchFolder scratch;
  const std::string large(200'001, 'x');
  scratch.write("large", large);
  scratch.write("empty", "");
  const Files files(scratch.path());
  EXPECT_EQ(files.readBytes("large"), large);
  EXPECT_EQ(files.readBytes("empty"), "");
  EXPECT_EQ(errorOf([&] { (void)files.readBytes("none"); }), 53);
  EXPECT_EQ(errorOf([&] { (void)files.readBytes("nowhere/none"); }), 76);
  fs::create_directory(scratch.path() / "folder");
  EXPECT_EQ(errorOf([&] { (void)files.readBytes("folder"); }), 75);
}

}  // namespace
}  // namespace pantrigo
