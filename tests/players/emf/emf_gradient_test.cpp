#include <string>

#include <gtest/gtest.h>

#include "metafile/gdi_enumerations.h"
#include "players/traced_metafile.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEmrGradientFill = 118;
constexpr std::uint32_t kFull = 0xFF00;

/// What comes before the indexes: a red vertex at (0, 0), a green one at (8, 0), a blue one at
/// (8, 4).
Bytes WithVertices(std::uint32_t mode, std::uint32_t meshes) {
  Bytes body = Bytes().Rectangle(0, 0, 8, 4).U32(3).U32(meshes).U32(mode);
  body.PointL(0, 0).U16(kFull).U16(0).U16(0).U16(0);
  body.PointL(8, 0).U16(0).U16(kFull).U16(0).U16(0);
  return body.PointL(8, 4).U16(0).U16(0).U16(kFull).U16(0);
}

PlayedMetafile PlayedGradient(const Bytes& body) {
  return Played(Metafile().Record(kEmrGradientFill, body).Build());
}

const std::string kRedToBlue = "  stop 0 1 0 0\n  stop 1 0 0 1\n";

TEST(EmfGradient, RunsFromTheLeftOrTheTop) {
  const std::string within = "save\nrect 0 0 8 4\nclip\n";
  const PlayedMetafile across = PlayedGradient(WithVertices(GRADIENT_FILL_RECT_H, 1).U32(0).U32(2));
  EXPECT_EQ(across.trace, within + "axial 0.5 0.5 8.5 0.5\n" + kRedToBlue);
  EXPECT_EQ(across.report, "");
  const PlayedMetafile down = PlayedGradient(WithVertices(GRADIENT_FILL_RECT_V, 1).U32(0).U32(2));
  EXPECT_EQ(down.trace, within + "axial 0.5 0.5 0.5 4.5\n" + kRedToBlue);
}

TEST(EmfGradient, IsAMeshOfTriangles) {
  const PlayedMetafile played =
      PlayedGradient(WithVertices(GRADIENT_FILL_TRIANGLE, 1).U32(0).U32(1).U32(2));
  EXPECT_EQ(played.trace, "mesh\n  vertex 0 0 1 0 0\n  vertex 8 0 0 1 0\n  vertex 8 4 0 0 1\n");
  EXPECT_EQ(played.report, "");
}

TEST(EmfGradient, IsReportedWithoutItsVertices) {
  const std::string lacks =
      "damaged EMR_GRADIENTFILL 1: it lacks vertices that its shapes are to have\n";
  const PlayedMetafile across = PlayedGradient(WithVertices(GRADIENT_FILL_RECT_H, 1).U32(0).U32(3));
  EXPECT_EQ(across.trace, "");
  EXPECT_EQ(across.report, lacks);
  const PlayedMetafile mesh =
      PlayedGradient(WithVertices(GRADIENT_FILL_TRIANGLE, 1).U32(0).U32(1).U32(0xFFFFFFFF));
  EXPECT_EQ(mesh.trace, "");
  EXPECT_EQ(mesh.report, lacks);
}

TEST(EmfGradient, IsReportedWithAnUnknownMode) {
  const PlayedMetafile played = PlayedGradient(WithVertices(3, 1).U32(0).U32(1).U32(2));
  EXPECT_EQ(played.trace, "");
  EXPECT_EQ(played.report, "damaged EMR_GRADIENTFILL 1: its gradient is of an unknown kind\n");
}

}  // namespace
}  // namespace kelvane::test
