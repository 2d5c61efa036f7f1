#pragma once

#include <string>
#include <vector>

#include <kelvane/kelvane.h>

namespace kelvane::test {

/// A data object of the public interface.
class DataObject {
 public:
  DataObject() : data_(::CFDataCreateMutable(nullptr, 0)) {}
  DataObject(const DataObject&) = delete;
  DataObject& operator=(const DataObject&) = delete;
  ~DataObject() { ::CFRelease(data_); }

  [[nodiscard]] ::CFMutableDataRef Get() const { return data_; }
  [[nodiscard]] std::string Text() const;

 private:
  ::CFMutableDataRef data_;
};

/// What KELVANE makes of a metafile.
struct Conversion {
  int status;
  std::string output;
};

Conversion ConvertInMemory(const std::vector<unsigned char>& metafile);

}  // namespace kelvane::test
