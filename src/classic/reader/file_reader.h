#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <vector>

namespace kelvane {

/// A file read as it stands. It only serves to bring a whole metafile into memory. Apart from
/// opening, closing and readBlock, every call needs an open file.
class FileReader {
 public:
  FileReader() = default;
  /// Opens like setSource.
  explicit FileReader(const char* path) { setSource(path); }

  /// Opens a file for reading, without ever waiting for one (a pipe with no writer, for example).
  /// @return the stream, owned by this reader; null, and no file, when it cannot be opened.
  std::FILE* setSource(const char* path);

  /// Reads `count` bytes as they stand.
  /// @return 1 when all were there, else 0.
  std::size_t getBytes(unsigned char* destination, unsigned long count) const;

  [[nodiscard]] bool isEnd() const { return std::feof(file_.get()) != 0; }
  void rewind() const { std::rewind(file_.get()); }
  void closeSource() { file_.reset(); }
  [[nodiscard]] long getPosition() const { return std::ftell(file_.get()); }
  void setToPosition(long offset, int whence) const { std::fseek(file_.get(), offset, whence); }

  /// Reads the whole file into a block one byte longer than the file: the read that meets the end
  /// counts as one more, and the spare byte lets every byte of the file be read from the block.
  /// Throws std::system_error when the file is not open, cannot be rewound or cannot be read, when
  /// it is a device that supplies anything, or when the block would be 2 GiB or more;
  /// std::bad_alloc.
  std::vector<unsigned char> readBlock();

 private:
  struct Closer {
    void operator()(std::FILE* file) const { (void)std::fclose(file); }
  };

  [[nodiscard]] std::size_t CountAttempts() const;

  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace kelvane
