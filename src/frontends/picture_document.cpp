#include "frontends/picture_document.h"

#include <optional>
#include <stdexcept>
#include <utility>

#include "frontends/picture_surface.h"
#include "platform/quartz/cg_context_calls.h"
#include "players/picture/metafile_player.h"

namespace kelvane {
namespace {

// What PDF readers have long been asked to show at least.
constexpr CGFloat kSmallestPage = 3;

std::u16string Text(const ArrayView<char16_t>& stored) {
  return {stored.begin(), stored.end()};
}

void Remark(PageTrouble trouble, Report& report) {
  if (trouble == PageTrouble::kFrameEmpty)
    report.Remark("the frame is empty: the page is the bounds");
  if (trouble == PageTrouble::kFrameAbsurd) {
    report.Remark(
        "the frame cannot be meant, so far is it from the bounds: the page is the bounds");
  }
}

/// The page of a picture whose header tells of none.
PagePlacement PageOfWhatIsDrawn(const Metafile& metafile, const PictureGeometry& picture,
                                const PageSizeWish& wish, const PlaySetting& setting,
                                Report& report) {
  const auto area = DrawnArea(metafile, setting);
  const auto page = area ? PlaceAreaOnPage(picture, *area, wish) : std::nullopt;
  if (page) {
    report.Remark("the header tells of no page: it is what is drawn");
    return *page;
  }
  report.Remark("nothing tells how large the picture is: the page is a small square");
  const double side = wish.width.value_or(wish.height.value_or(kSmallestPage));
  return {{static_cast<CGFloat>(side), static_cast<CGFloat>(wish.height.value_or(side))},
          CGAffineTransformIdentity};
}

PagePlacement PageOf(const Metafile& metafile, const ConversionOptions& options,
                     const PlaySetting& setting, Report& report) {
  const PictureGeometry picture = metafile.Geometry();
  const PageSizeWish wish = PageWishOf(options);
  const auto page = PlaceOnPage(picture, options.page, wish);
  if (!page) return PageOfWhatIsDrawn(metafile, picture, wish, setting, report);
  Remark(page->trouble, report);
  return *page;
}

}  // namespace

PictureDocument::PictureDocument(const ConversionOptions& options, const PlaySetting& setting,
                                 std::u16string title, Report& report)
    : options_(options),
      setting_(setting),
      title_(std::move(title)),
      report_(report),
      bytes_(CFDataCreateMutable(kCFAllocatorDefault, 0)),
      consumer_(CGDataConsumerCreateWithCFData(bytes_.get())) {}

void PictureDocument::Begin(const Metafile& first, const CGRect& page) {
  PictureWords words = {title_, {}};
  if (const EmfHeader* header = first.Enhanced()) {
    if (words.title.empty()) words.title = Text(header->title);
    words.creator = Text(header->creator);
  }
  surface_ = SurfaceFor(options_, page, words, consumer_.get());
  if (!surface_) throw std::runtime_error("the page has no area");
  firstPage_ = page.size;
}

void PictureDocument::AddPage(const Metafile& metafile) {
  const PagePlacement placement = PageOf(metafile, options_, setting_, report_);
  const CGRect box = {{0, 0}, placement.size};
  if (!surface_) Begin(metafile, box);
  CGContextBeginPage(surface_.get(), &box);
  records_ += PlayMetafile(metafile, placement, setting_, *surface_, report_);
  CGContextEndPage(surface_.get());
  ++pages_;
}

bool PictureDocument::IsFull() const {
  return pages_ > 0 && !HasPages(options_.format);
}

CFOwned<CFData> PictureDocument::Finish() {
  surface_->Close();
  return std::move(bytes_);
}

}  // namespace kelvane
