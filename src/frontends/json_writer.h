#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvane {

/// Writes JSON on one line, a call a token; commas come by themselves. Unlike the libraries at
/// hand it may run out of memory at any point: std::bad_alloc leaves it fit to be destroyed.
class JsonWriter {
 public:
  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }

  /// Within an object, before each value.
  void Key(std::string_view name);

  /// @param text  UTF-8; what is not, is taken for Latin-1.
  void Text(std::string_view text);
  /// @param number  finite.
  void Number(double number);
  void Count(std::size_t count);

  /// @return what was written.
  [[nodiscard]] const std::string& Written() const { return json_; }

 private:
  void Open(char bracket);
  void Close(char bracket);
  void BeginValue();
  void Quote(std::string_view utf8);

  std::string json_;
  bool isFirst_ = true;  // so that no comma goes before what comes next
};

}  // namespace kelvane
