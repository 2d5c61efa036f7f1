#include "players/wmf/wmf_picture.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "base/saved_states.h"
#include "metafile/wmf/wmf_object_records.h"
#include "metafile/wmf/wmf_record_iterator.h"
#include "metafile/wmf/wmf_state_records.h"
#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

constexpr double kPixelsPerInch = 96;  // of a screen
constexpr double kMillimetersPerInch = 25.4;
constexpr double kFrameUnitsPerInch = 2540;

/// Units an inch where the file names the unit; 0 elsewhere.
double UnitsPerInch(MapMode mode) {
  switch (mode) {
    case MM_TEXT:
      return kPixelsPerInch;
    case MM_LOMETRIC:
      return 254;
    case MM_HIMETRIC:
      return 2540;
    case MM_LOENGLISH:
      return 100;
    case MM_HIENGLISH:
      return 1000;
    case MM_TWIPS:
      return 1440;
    default:
      return 0;
  }
}

struct WmfMappingState {
  WmfWindow window;
  MapMode mode = MM_ANISOTROPIC;

  friend bool operator==(const WmfMappingState&, const WmfMappingState&) = default;
};

/// What the records say of the window up to the first mark, and who wrote them.
class WmfWindowSearch {
 public:
  explicit WmfWindowSearch(std::span<const unsigned char> file, const WmfHeader& header) {
    WmfRecordIterator records(file, header.records);
    while (auto record = records.Next()) {
      if (MakesWmfMark(record->type)) hasMark_ = true;
      if (!hasMark_) TakeMapping(*record);
      if (record->type == META_CREATEFONTINDIRECT) TakeFont(record->bytes);
    }
  }

  [[nodiscard]] const WmfMappingState& State() const { return state_; }
  [[nodiscard]] bool IsEquation() const { return isEquation_; }

 private:
  void TakeMapping(WmfRecord& record) {
    switch (record.type) {
      case META_SETWINDOWORG:
        state_.window.origin = DecodeWmfPoint(record.bytes).point;
        break;
      case META_SETWINDOWEXT:
        TakeExtent(DecodeWmfExtent(record.bytes).extent);
        break;
      case META_SETMAPMODE:
        state_.mode = DecodeWmfMode<MapMode>(record.bytes).mode;
        break;
      case META_SAVEDC:
        saved_.Push(state_);
        break;
      case META_RESTOREDC:
        Restore(DecodeWmfRestoreDC(record.bytes).savedDC);
        break;
      default:
        break;
    }
  }

  void TakeExtent(SizeL extent) {
    if (extent.cx != 0 && extent.cy != 0) state_.window.extent = extent;
  }

  void Restore(std::int32_t level) {
    const auto depth = static_cast<std::int64_t>(saved_.Depth());
    const std::int64_t to = level < 0 ? depth + level : level - 1;
    if (to >= 0 && to < depth) state_ = saved_.PopTo(static_cast<std::size_t>(to));
  }

  /// Editors of equations have units of their own and fonts that no other program uses.
  void TakeFont(ByteView bytes) {
    const LogFont16 font = DecodeWmfCreateFontIndirect(bytes).font;
    const std::string_view name(font.faceName.begin(), std::ranges::find(font.faceName, '\0'));
    if (name == "MT Extra" || name == "Fences") isEquation_ = true;
  }

  WmfMappingState state_;
  SavedStates<WmfMappingState> saved_;
  bool hasMark_ = false;
  bool isEquation_ = false;
};

/// Units an inch of a window of which no header tells.
double GuessedUnitsPerInch(const WmfWindowSearch& search, SizeL extent) {
  constexpr double kOfEquations = 2304;
  constexpr double kFine = 1440;
  constexpr int kMostPixels = 1000;
  const double known = UnitsPerInch(search.State().mode);
  if (known != 0) return known;
  if (search.IsEquation()) return kOfEquations;
  const bool isSmall = std::max(std::abs(extent.cx), std::abs(extent.cy)) <= kMostPixels;
  return isSmall ? kPixelsPerInch : kFine;
}

/// Inches.
struct WmfPageSize {
  double width = 0;
  double height = 0;
};

WmfPageSize SizeOf(const WmfHeader& header, const WmfWindowSearch& search) {
  if (header.placeable) {
    const RectangleL& box = header.placeable->box;
    const double units =
        header.placeable->unitsPerInch != 0 ? header.placeable->unitsPerInch : kPixelsPerInch;
    if (box.left != box.right && box.top != box.bottom) {
      return {std::abs(static_cast<double>(box.right) - box.left) / units,
              std::abs(static_cast<double>(box.bottom) - box.top) / units};
    }
  }
  const auto extent = search.State().window.extent;
  if (!extent) return {};
  const double units = GuessedUnitsPerInch(search, *extent);
  return {std::abs(extent->cx) / units, std::abs(extent->cy) / units};
}

/// The box of a header is the window of a file that sets none. Without both a unit is a pixel of a
/// screen, and the page is yet to be found out.
WmfWindow WindowAtStart(const WmfHeader& header, const WmfWindowSearch& search) {
  if (search.State().window.extent) return {};
  const RectangleL box = header.placeable ? header.placeable->box : RectangleL{};
  const PointL corner = {std::min(box.left, box.right), std::min(box.top, box.bottom)};
  const SizeL size = {std::abs(box.right - box.left), std::abs(box.bottom - box.top)};
  if (size.cx == 0 || size.cy == 0) return {{}, SizeL{1, 1}};
  return {corner, size};
}

/// @param pixels  of the page. @return its geometry, with pixels that fill it exactly.
PictureGeometry GeometryOf(const WmfPageSize& inches, SizeL pixels) {
  PictureGeometry geometry;
  geometry.bounds = {0, 0, -1, -1};
  geometry.devicePixelsWide = pixels.cx;
  geometry.devicePixelsHigh = pixels.cy;
  geometry.deviceMillimetersWide = kMillimetersPerInch * pixels.cx / kWmfDotsPerInch;
  geometry.deviceMillimetersHigh = kMillimetersPerInch * pixels.cy / kWmfDotsPerInch;
  if (inches.width == 0) return geometry;
  geometry.bounds = {0, 0, static_cast<double>(pixels.cx), static_cast<double>(pixels.cy)};
  geometry.frame = {0, 0, inches.width * kFrameUnitsPerInch, inches.height * kFrameUnitsPerInch};
  geometry.deviceMillimetersWide = inches.width * kMillimetersPerInch;
  geometry.deviceMillimetersHigh = inches.height * kMillimetersPerInch;
  return geometry;
}

}  // namespace

std::optional<WmfPicture> ReadWmfPicture(std::span<const unsigned char> file,
                                         std::span<const unsigned char> placeable) {
  const auto header = ReadWmfHeader(file, placeable);
  if (!header) return std::nullopt;
  const WmfWindowSearch search(file, *header);
  const WmfPageSize inches = SizeOf(*header, search);
  const auto pixels = [](double length) {
    const double shown = length == 0 ? 1 / kPixelsPerInch : length;
    return std::max(static_cast<std::int32_t>(std::lround(shown * kWmfDotsPerInch)), 1);
  };
  const SizeL page = {pixels(inches.width), pixels(inches.height)};
  return WmfPicture{*header, WindowAtStart(*header, search), page, GeometryOf(inches, page), false};
}

}  // namespace kelvane
