#include "classic/reader/file_reader.h"

#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/files.h"

namespace kelvane {
namespace {

using test::TemporaryFolder;
using test::WriteFile;
using Block = std::vector<unsigned char>;

class FileReaderTest : public testing::Test {
 protected:
  std::string FileOf(const Block& bytes) {
    WriteFile(folder_ / "file", bytes);
    return folder_ / "file";
  }

  TemporaryFolder folder_;
};

std::error_code ErrorOfReading(const std::string& path) {
  try {
    FileReader(path.c_str()).readBlock();
  } catch (const std::system_error& error) {
    return error.code();
  }
  return {};
}

TEST_F(FileReaderTest, AddsOneByteToTheFile) {
  Block block = FileReader(FileOf({1, 2, 3}).c_str()).readBlock();
  ASSERT_EQ(block.size(), 4U);
  block.pop_back();
  EXPECT_EQ(block, (Block{1, 2, 3}));
}

TEST_F(FileReaderTest, MakesOneByteOfAnEmptyFile) {
  EXPECT_EQ(FileReader(FileOf({}).c_str()).readBlock().size(), 1U);
}

TEST_F(FileReaderTest, KeepsTheOrderOfAFileReadInManyParts) {
  Block bytes(200'001);
  for (std::size_t i = 0; i < bytes.size(); ++i)
    bytes[i] = static_cast<unsigned char>(i % 251);
  Block block = FileReader(FileOf(bytes).c_str()).readBlock();
  block.pop_back();
  EXPECT_EQ(block, bytes);
}

TEST_F(FileReaderTest, ReadsTheBlockFromTheStartWhereverItStands) {
  FileReader reader(FileOf({1, 2, 3}).c_str());
  reader.setToPosition(2, SEEK_SET);
  EXPECT_EQ(reader.readBlock().front(), 1);
}

TEST_F(FileReaderTest, GetsBytesAsTheyStand) {
  FileReader reader(FileOf({1, 2, 3, 4}).c_str());
  Block bytes(4);
  EXPECT_EQ(reader.getBytes(bytes.data(), 4), 1U);
  EXPECT_EQ(bytes, (Block{1, 2, 3, 4}));
}

TEST_F(FileReaderTest, GetsNothingWholeWhenTheFileEndsEarly) {
  FileReader reader(FileOf({1, 2, 3}).c_str());
  Block bytes(4);
  EXPECT_EQ(reader.getBytes(bytes.data(), 4), 0U);
  EXPECT_TRUE(reader.isEnd());
}

TEST_F(FileReaderTest, IsAtTheEndOnlyAfterAReadMetIt) {
  FileReader reader(FileOf({1}).c_str());
  unsigned char byte = 0;
  reader.getBytes(&byte, 1);
  EXPECT_FALSE(reader.isEnd());
  reader.getBytes(&byte, 1);
  EXPECT_TRUE(reader.isEnd());
  reader.rewind();
  EXPECT_FALSE(reader.isEnd());
}

TEST_F(FileReaderTest, MovesToPositions) {
  FileReader reader(FileOf({1, 2, 3, 4}).c_str());
  reader.setToPosition(-1, SEEK_END);
  EXPECT_EQ(reader.getPosition(), 3);
  unsigned char byte = 0;
  reader.getBytes(&byte, 1);
  EXPECT_EQ(byte, 4);
}

TEST_F(FileReaderTest, HasNoStreamForAFileThatIsNotThere) {
  EXPECT_EQ(FileReader().setSource((folder_ / "absent").c_str()), nullptr);
}

TEST_F(FileReaderTest, LetsGoOfItsFileWhenTheNextCannotBeOpened) {
  FileReader reader(FileOf({1}).c_str());
  reader.setSource((folder_ / "absent").c_str());
  EXPECT_THROW(reader.readBlock(), std::system_error);
}

TEST_F(FileReaderTest, RefusesAFileThatIsNotThere) {
  EXPECT_EQ(ErrorOfReading(folder_ / "absent"), std::errc::no_such_file_or_directory);
}

TEST_F(FileReaderTest, RefusesAFolder) {
  EXPECT_TRUE(ErrorOfReading(folder_.Path()));
}

TEST_F(FileReaderTest, RefusesAPipe) {
  const std::string pipe = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(ErrorOfReading(pipe), std::errc::invalid_seek);
}

TEST_F(FileReaderTest, RefusesAPipeThatSomebodyWritesTo) {
  const std::string pipe = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const int writer = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
  EXPECT_EQ(ErrorOfReading(pipe), std::errc::invalid_seek);
  close(writer);
}

TEST(FileReader, RefusesADeviceThatNeverEnds) {
  EXPECT_EQ(ErrorOfReading("/dev/zero"), std::errc::file_too_large);
}

TEST(FileReader, TakesAnEmptyDeviceForAnEmptyFile) {
  EXPECT_EQ(FileReader("/dev/null").readBlock().size(), 1U);
}

TEST_F(FileReaderTest, RefusesTheFirstLengthWhoseBlockHasTwoGibibytes) {
  const std::string path = FileOf({});
  std::filesystem::resize_file(path, 0x7FFF'FFFF);
  EXPECT_EQ(ErrorOfReading(path), std::errc::file_too_large);
}

}  // namespace
}  // namespace kelvane
