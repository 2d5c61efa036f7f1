#include "hostile/attacks.h"

namespace kelvane::test {

std::vector<Attack> Attacks() {
  std::vector<Attack> all;
  for (const auto& group : {AttacksByCounts(), AttacksByPictures(), AttacksByNumbers()})
    all.insert(all.end(), group.begin(), group.end());
  return all;
}

std::vector<unsigned char> Followed(Metafile harm) {
  constexpr std::uint32_t kBrush = 9;
  harm.SetMapMode(1).SetWorldTransform(kIdentityTransform);
  harm.CreateBrush(kBrush, kBehindColor).SelectObject(kBrush).SelectObject(kStockNullPen);
  return harm.Rectangle({60, 60, 91, 91}).Build();
}

std::vector<unsigned char> Followed(const PlusRecords& harm) {
  Metafile metafile;
  PlusRecords().Header().AddTo(metafile);
  harm.AddTo(metafile);
  PlusRecords().GetDC().AddTo(metafile);
  return Followed(metafile);
}

// The brush gets the first slot that is free.
std::vector<unsigned char> Followed(WindowsMetafile harm) {
  constexpr std::uint16_t kSelectObject = 0x012D;
  constexpr std::uint16_t kCreatePenIndirect = 0x02FA;
  constexpr std::uint16_t kCreateBrushIndirect = 0x02FC;
  constexpr std::uint32_t kNullPen = 5;
  harm.Record(kCreateBrushIndirect, Bytes().U16(0).U32(kBehindColor).U16(0));
  harm.Record(kCreatePenIndirect, Bytes().U16(kNullPen).I16(0).I16(0).U32(0));
  harm.Record(kSelectObject, {0}).Record(kSelectObject, {1});
  return harm.Record(0x041B, {91, 91, 60, 60}).Build();
}

WindowsMetafile HundredUnits() {
  return WindowsMetafile().Placeable(0, 0, 100, 100, 96).Record(0x020C, {100, 100});
}

}  // namespace kelvane::test
