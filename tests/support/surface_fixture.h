#pragma once

#include <string>

#include <gtest/gtest.h>

#include "classic/context/abstract_context.h"
#include "platform/trace/cg_trace_context.h"
#include "support/playback.h"

namespace kelvane::test {

/// A playback context on a trace surface in the middle of a page, for records that change more than
/// they draw.
class SurfaceFixture : public testing::Test {
 protected:
  SurfaceFixture();

  /// @return what was traced since the last call.
  std::string TakeTrace();

  /// Plays a record back, made of `arguments` and read from `body`.
  template <class R, class... Arguments>
  void Play(const Bytes& body, Arguments... arguments) {
    ReadRecord<R>(body, arguments...)->drawToPDF(context_);
  }

  [[nodiscard]] const CGGraphicsState& State() const { return context_.context->State(); }

 private:
  std::string trace_;
  CFOwned<CGContext> surface_{CGTraceContextCreate(trace_)};

 protected:
  AbstractContext context_;
};

}  // namespace kelvane::test
