#include "support/library.h"

namespace kelvane::test {

std::string DataObject::Text() const {
  const auto length = static_cast<std::size_t>(::CFDataGetLength(data_));
  if (length == 0) return {};
  return {reinterpret_cast<const char*>(::CFDataGetBytePtr(data_)), length};
}

Conversion ConvertInMemory(const std::vector<unsigned char>& metafile) {
  const DataObject data;
  const int status = KELVANE(metafile.data(), metafile.size(), data.Get());
  return {status, data.Text()};
}

}  // namespace kelvane::test
