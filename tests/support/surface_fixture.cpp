#include "support/surface_fixture.h"

#include <utility>

#include "platform/quartz/cg_context_calls.h"

namespace kelvane::test {

SurfaceFixture::SurfaceFixture() {
  constexpr CGRect kPage = CGRectMake(0, -100, 100, 100);
  CGContextBeginPage(surface_.get(), &kPage);
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  CGContextSetFillColorSpace(surface_.get(), rgb.get());
  CGContextSetStrokeColorSpace(surface_.get(), rgb.get());
  context_.context = surface_.get();
  TakeTrace();
}

std::string SurfaceFixture::TakeTrace() {
  return std::exchange(trace_, {});
}

}  // namespace kelvane::test
