#include "metafile/emf/emf_path_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

TEST(PaintPathRecord, HasBounds) {
  EXPECT_EQ(Decode(DecodePaintPath, Bytes().Rectangle(1, 2, 3, 4))->bounds,
            (RectangleL{1, 2, 3, 4}));
}

TEST(SelectClipPathRecord, HasAMode) {
  EXPECT_EQ(Decode(DecodeSelectClipPath, Bytes().U32(3))->mode, RGN_XOR);
}

}  // namespace
}  // namespace kelvane::test
