#include "players/picture/metafile_player.h"

#include <cmath>
#include <cstdint>
#include <memory>

#include "gdi/exactly.h"
#include "gdi/steps.h"
#include "players/drawn_extent.h"
#include "players/emf/emf_player.h"
#include "players/stage.h"
#include "players/wmf/wmf_player.h"

namespace kelvane {
namespace {

/// Where a picture lies within another: upright in a user space of the surface, which turns it.
struct InnerPlace {
  TransformD unitToUser;
  TransformD userToPage;
};

/// @param unitToPage  from the unit square, y downwards; not onto a line or a point.
InnerPlace PlaceOf(const TransformD& unitToPage) {
  if (unitToPage.m12 == 0 && unitToPage.m21 == 0) return {unitToPage, {}};
  const double width = std::hypot(unitToPage.m11, unitToPage.m12);
  const double height = std::hypot(unitToPage.m21, unitToPage.m22);
  const TransformD userToUnit = {1 / width, 0, 0, -1 / height, 0, 1};
  return {{width, 0, 0, -height, 0, height}, userToUnit.Then(unitToPage)};
}

/// A picture with those within its images. These may be played again and again, each with others
/// within, so they have a share of what the whole file may take, by their sizes.
class PictureWithImages {
 public:
  PictureWithImages(const Metafile& metafile, const PlaySetting& setting, CGContext& surface,
                    Report& report)
      : metafile_(metafile),
        setting_(setting),
        surface_(surface),
        report_(report),
        bytesWithin_((1U << 20) + 16 * std::uint64_t{metafile.file.size()}) {}

  /// @param whole  what can be seen, device units. @return how many records there were.
  std::size_t Play(const CGAffineTransform& deviceToPage, const RectangleD& whole) {
    surface_.WatchGround({1, 1, 1, 1});  // paper is white
    return Play(metafile_, deviceToPage, whole, nullptr);
  }

 private:
  std::size_t Play(const Metafile& metafile, const CGAffineTransform& deviceToPage,
                   const RectangleD& whole, const Canvas* around) {
    const Stage stage = {setting_,    surface_, deviceToPage, whole,
                         playWithin_, report_,  around,       clipSteps_};
    if (const EmfHeader* header = metafile.Enhanced())
      return PlayEmf(metafile.file, *header, stage);
    return PlayWmf(metafile.file, std::get<WmfPicture>(metafile.picture), stage);
  }

  std::optional<Shortfall> PlayInner(const MetafileWithin& within, const TransformD& unitToDevice,
                                     const Canvas& around) {
    constexpr int kDeepest = 8;
    if (depth_ >= kDeepest) return Shortfall::kMetafileTooDeep;
    if (!bytesWithin_.Take(within.file.size())) return Shortfall::kMetafilesTooLarge;
    const auto inner = OpenMetafile(within.file, within.placeableHeader);
    const auto page = inner ? PlaceOnPage(inner->Geometry(), PageChoice::kFrame, {}) : std::nullopt;
    if (!page) return Shortfall::kUnreadableMetafile;
    const TransformD unitToPage = unitToDevice.Then(Exactly(around.DeviceToPage()));
    if (!unitToPage.Inverse()) return std::nullopt;  // nobody sees it
    const InnerPlace place = PlaceOf(unitToPage);
    const TransformD pageToUnit = {1 / page->size.width, 0, 0, -1 / page->size.height, 0, 1};
    const TransformD deviceToUser =
        Exactly(page->deviceToPage).Then(pageToUnit).Then(place.unitToUser);
    ++depth_;
    surface_.SaveGState();
    surface_.ConcatCTM(Rounded(place.userToPage));
    Play(*inner, Rounded(deviceToUser), AreaOf(*page), &around);
    surface_.RestoreGState();
    --depth_;
    return std::nullopt;
  }

  const Metafile& metafile_;
  const PlaySetting& setting_;
  CGContext& surface_;
  Report& report_;
  Steps bytesWithin_;
  std::shared_ptr<Steps> clipSteps_ = std::make_shared<Steps>(1U << 23);
  int depth_ = 0;
  PlayWithin playWithin_ = [this](const MetafileWithin& within, const TransformD& unitToDevice,
                                  const Canvas& around) {
    return PlayInner(within, unitToDevice, around);
  };
};

}  // namespace

std::optional<StoredRectangle> DrawnArea(const Metafile& metafile, const PlaySetting& setting) {
  constexpr double kFar = 1 << 24;  // beyond it single precision has no whole units
  const CFOwned<DrawnExtent> extent(new DrawnExtent);
  extent->BeginPage({{0, 0}, {1, 1}});
  Report unread;
  PictureWithImages(metafile, setting, *extent, unread).Play({}, {-kFar, -kFar, kFar, kFar});
  extent->EndPage();
  return extent->Area();
}

std::size_t PlayMetafile(const Metafile& metafile, const PagePlacement& page,
                         const PlaySetting& setting, CGContext& surface, Report& report) {
  surface.SaveGState();
  const std::size_t count =
      PictureWithImages(metafile, setting, surface, report).Play(page.deviceToPage, AreaOf(page));
  surface.RestoreGState();
  return count;
}

}  // namespace kelvane
