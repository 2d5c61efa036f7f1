#include "frontends/font_map_file.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "base/unicode.h"

namespace kelvane {
namespace {

constexpr std::size_t kMostBytes = std::size_t{1024} * 1024;

struct FileCloser {
  void operator()(std::FILE* file) const noexcept { (void)std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

/// A line's two names.
struct Wish {
  std::string_view asked;
  std::string_view used;
};

[[noreturn]] void ThrowUnreadable() {
  throw std::runtime_error("it cannot be read: " + std::generic_category().message(errno));
}

std::string ReadText(const std::string& path) {
  const File file(std::fopen(path.c_str(), "rbe"));
  if (!file) ThrowUnreadable();
  std::string text(kMostBytes + 1, '\0');  // a byte more shows that there is too much
  text.resize(std::fread(text.data(), 1, text.size(), file.get()));
  if (std::ferror(file.get()) != 0) ThrowUnreadable();
  if (text.size() > kMostBytes) throw std::runtime_error("it has more than 1 MiB");
  return text;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<Wish> WishIn(std::string_view line) {
  const std::size_t at = line.find('=');
  if (at == std::string_view::npos) return std::nullopt;
  const Wish wish = {Trimmed(line.substr(0, at)), Trimmed(line.substr(at + 1))};
  if (wish.asked.empty() || wish.used.empty()) return std::nullopt;
  return wish;
}

/// @return the text up to the end of its line, which is taken off the text.
std::string_view TakeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  return line;
}

void AddLine(std::string_view line, std::size_t number, FontMap& map) {
  if (!IsUTF8(line)) throw std::runtime_error("line " + std::to_string(number) + " is not UTF-8");
  line = Trimmed(line);
  if (line.empty() || line.front() == '#') return;
  const auto wish = WishIn(line);
  if (!wish) {
    throw std::runtime_error("line " + std::to_string(number) + " is not of the form asked = used");
  }
  map.Add(wish->asked, wish->used);
}

}  // namespace

FontMap ParseFontMap(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  FontMap map;
  for (std::size_t number = 1; !text.empty(); ++number)
    AddLine(TakeLine(text), number, map);
  return map;
}

FontMap ReadFontMap(const std::string& path) {
  return ParseFontMap(ReadText(path));
}

}  // namespace kelvane
