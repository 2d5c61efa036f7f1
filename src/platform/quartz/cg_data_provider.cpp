#include "platform/quartz/cg_data_provider.h"

#include <utility>

namespace kelvane {

CGDataProviderRef CGDataProviderCreateWithCFData(CFDataRef data) {
  return data != nullptr ? new CGDataProvider(data) : nullptr;
}

CGDataProviderRef CGDataProviderCreateWithData(void* info, const void* data, std::size_t size,
                                               CGDataProvider::ReleaseCallback release) {
  return new CGDataProvider(info, {static_cast<const unsigned char*>(data), size}, release);
}

CGDataProviderRef CGDataProviderCreateMaking(CGMakeBytes make) {
  return make ? new CGDataProvider(std::move(make)) : nullptr;
}

}  // namespace kelvane
