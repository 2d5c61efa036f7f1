#include <memory>
#include <utility>

#include "metafile/emfplus/emfplus_state_records.h"
#include "players/emfplus/emfplus_handler.h"

namespace kelvane {
namespace {

/// @param stored  of a header; 0 says nothing.
double DotsOr(std::uint32_t stored, double otherwise) {
  return stored > 0 ? stored : otherwise;
}

void PlayHeader(EmfPlusPlayback& p, const EmfPlusHeader& header) {
  PointD& resolution = p.graphics.resolution;
  resolution = {DotsOr(header.dpiX, resolution.x), DotsOr(header.dpiY, resolution.y)};
}

void PlayObject(EmfPlusPlayback& p, const EmfPlusRecord& record) {
  auto stored = std::make_shared<EmfPlusStoredObject>();
  switch (p.assembler.Add(record, *stored)) {
    case EmfPlusObjectAssembler::Progress::kPending:
      return;
    case EmfPlusObjectAssembler::Progress::kBroken:
      return p.Damaged("its pieces make no object");
    case EmfPlusObjectAssembler::Progress::kWhole:
      break;
  }
  if (std::holds_alternative<std::monostate>(stored->object)) {
    p.Damaged("its object cannot be read");
  }
  if (stored->assembled != nullptr) p.assembled.push_back(stored->assembled);
  const std::size_t slot = stored->slot;
  p.objects[slot] = std::move(stored);
}

constexpr EmfPlusHandler kControlRows[] = {
    {kEmfPlusHeader, PlayingEmfPlus<DecodeEmfPlusHeader>(
                         [](EmfPlusPlayback& p, const auto& r) { PlayHeader(p, r); })},
    {kEmfPlusEndOfFile, kPassEmfPlusOver},
    {kEmfPlusComment, kPassEmfPlusOver},
    {kEmfPlusGetDC, [](EmfPlusPlayback& p, const EmfPlusRecord&) { p.handsOver = true; }},
    {kEmfPlusObject, PlayObject},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusControlHandlers() {
  return kControlRows;
}

}  // namespace kelvane
