#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kelvane::test {

/// A folder of its own, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::string operator/(std::string_view name) const {
    return (path_ / name).string();
  }

 private:
  std::filesystem::path path_;
};

/// The names in a folder, hidden ones too, in order.
std::vector<std::string> NamesIn(const TemporaryFolder& folder);

/// Throws std::runtime_error when the file cannot be read or written.
std::string ReadFile(const std::filesystem::path& path);
void WriteFile(const std::filesystem::path& path, std::string_view text);
void WriteFile(const std::filesystem::path& path, const std::vector<unsigned char>& bytes);

}  // namespace kelvane::test
