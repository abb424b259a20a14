#include "platform/files/text_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/scratch_folder.h"

namespace pantrigo {
namespace {

using Lines = std::vector<std::string>;

Lines linesOf(TextReader& reader) {
  Lines lines;
  while (!reader.Eof()) lines.push_back(reader.LineInput());
  return lines;
}

TEST(TextReader, ReadsLines) {
  struct Row {
    std::string bytes;
    Lines lines;
  };
  using namespace std::string_literals;
  const Row rows[] = {
      {"", {}},
      {"a\r\nb\r\n", {"a", "b"}},
      {"a\r\nb", {"a", "b"}},
      {"a\rb\r", {"a", "b"}},
      {"a\r\n\r\nb", {"a", "", "b"}},
      {"a\nb\r\nc", {"a\nb", "c"}},
      {"a\nb\n", {"a", "b"}},
      {"a\n\nb", {"a", "", "b"}},
      {"\r\n", {""}},
      {"\n\r", {"\n"}},
      {"a\r\nb\x1A\r\nc\r\n", {"a", "b"}},
      {"a\nb\n\x1A\r\n", {"a", "b"}},
      {"\x1A"
       "abc",
       {}},
      {"a\0b\r\n"s, {"a\0b"s}},
  };
  for (const Row& row : rows) {
    const ScratchFolder scratch;
    scratch.write("in.txt", row.bytes);
    TextReader reader(Files(scratch.path()), "IN.TXT");
    EXPECT_EQ(linesOf(reader), row.lines) << row.bytes;
    EXPECT_EQ(errorOf([&] { (void)reader.LineInput(); }), 62);
  }
}

TEST(TextReader, SeesTheEndRightAfterTheLastLine) {
  const ScratchFolder scratch;
  scratch.write("in.txt", "a\r\nb\r\n");
  TextReader reader(Files(scratch.path()), "in.txt");
  EXPECT_FALSE(reader.Eof());
  EXPECT_EQ(reader.LineInput(), "a");
  EXPECT_FALSE(reader.Eof());
  EXPECT_EQ(reader.LineInput(), "b");
  EXPECT_TRUE(reader.Eof());
  reader.rewind();
  EXPECT_FALSE(reader.Eof());
  EXPECT_EQ(reader.LineInput(), "a");
}

TEST(TextReader, TellsTheTwoEncodingsApart) {
  struct Row {
    std::string bytes;
    std::string line;
  };
  const Row rows[] = {
      {"\xEF\xBB\xBF"
       "crème",
       "crème"},
      {"crème", "crème"},
      {"cr\xE8me", "crème"},
      {"\xBD cup \x96 100 \xB0"
       "C",
       "½ cup – 100 °C"},
      {"crème cr\xE8me", "crÃ¨me crème"},
      // What follows the end mark does not count.
      {"crème\x1A\xFF", "crème"},
  };
  for (const Row& row : rows) {
    const ScratchFolder scratch;
    scratch.write("in.txt", row.bytes);
    EXPECT_EQ(TextReader(Files(scratch.path()), "in.txt").LineInput(), row.line);
  }
}

TEST(TextReader, IsAtTheEndOfAFileThatIsASignatureOnly) {
  const ScratchFolder scratch;
  scratch.write("in.txt", "\xEF\xBB\xBF");
  EXPECT_TRUE(TextReader(Files(scratch.path()), "in.txt").Eof());
}

TEST(TextReader, NeedsTheFile) {
  const ScratchFolder scratch;
  const Files files(scratch.path());
  EXPECT_EQ(errorOf([&] { TextReader(files, "none.txt"); }), 53);
  EXPECT_EQ(errorOf([&] { TextReader(files, "nowhere\\none.txt"); }), 76);
}

TEST(TextWriter, CreatesOrEmptiesTheFile) {
  const ScratchFolder scratch;
  scratch.write("Out.txt", "something that was longer before");
  const Files files(scratch.path());
  TextWriter writer(files, "OUT.TXT");
  writer.PrintLine("crème");
  writer.PrintLine("");
  writer.PrintLine("\"1,2\" ");
  writer.Close();
  writer.Close();
  EXPECT_EQ(files.readBytes("Out.txt"), "crème\r\n\r\n\"1,2\" \r\n");
}

TEST(TextWriter, RefusesWhatCanNotBeOpened) {
  const ScratchFolder scratch;
  std::filesystem::create_directory(scratch.path() / "folder");
  const Files files(scratch.path());
  EXPECT_EQ(errorOf([&] { TextWriter(files, "nowhere/out.txt"); }), 76);
  EXPECT_EQ(errorOf([&] { TextWriter(files, "folder"); }), 75);
}

TEST(TextWriter, ReportsAFullDisk) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  const Files files("/dev");
  TextWriter writer(files, "full");
  writer.PrintLine("waits in the buffer");
  EXPECT_EQ(errorOf([&] { writer.Close(); }), 61);
  TextWriter second(files, "full");
  EXPECT_EQ(errorOf([&] {
              for (int i = 0; i < 100'000; ++i) second.PrintLine("more than any buffer takes");
            }),
            61);
}

}  // namespace
}  // namespace pantrigo
