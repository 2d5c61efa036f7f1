#include "gdi/object_table.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace kelvane {
namespace {

constexpr ColorRef kBlack = {0x000000};
constexpr ColorRef kDarkGray = {0x404040};
constexpr ColorRef kGray = {0x808080};
constexpr ColorRef kLightGray = {0xC0C0C0};
constexpr ColorRef kWhite = {0xFFFFFF};

std::shared_ptr<const Brush> SolidBrush(ColorRef color) {
  return std::make_shared<Brush>(CreateSolidBrush(color));
}

std::shared_ptr<const Pen> ThinPen(PenStyle style, ColorRef color) {
  return std::make_shared<Pen>(CreatePenIndirect({style, {0, 0}, color}));
}

std::shared_ptr<const LogFont> Font(std::u16string_view face, std::int32_t height,
                                    std::int32_t weight, CharacterSet charSet) {
  LogFont font;
  font.height = height;
  font.weight = weight;
  font.charSet = charSet;
  std::ranges::copy(face, font.faceName.begin());
  return std::make_shared<LogFont>(font);
}

}  // namespace

ObjectTable::ObjectTable() {
  Stock(WHITE_BRUSH) = SolidBrush(kWhite);
  Stock(LTGRAY_BRUSH) = SolidBrush(kLightGray);
  Stock(GRAY_BRUSH) = SolidBrush(kGray);
  Stock(DKGRAY_BRUSH) = SolidBrush(kDarkGray);
  Stock(BLACK_BRUSH) = SolidBrush(kBlack);
  Stock(NULL_BRUSH) = std::make_shared<const Brush>();
  Stock(DC_BRUSH) = SolidBrush(kWhite);
  Stock(WHITE_PEN) = ThinPen(PS_SOLID, kWhite);
  Stock(BLACK_PEN) = ThinPen(PS_SOLID, kBlack);
  Stock(NULL_PEN) = ThinPen(PS_NULL, kBlack);
  Stock(DC_PEN) = ThinPen(PS_SOLID, kBlack);
  Stock(DEFAULT_PALETTE) = std::make_shared<Palette>(Palette::Default());
  MakeStockFonts();
}

void ObjectTable::Set(std::uint32_t index, Pen pen) {
  Put(index, std::make_shared<const Pen>(std::move(pen)));
}

void ObjectTable::Set(std::uint32_t index, Brush brush) {
  Put(index, std::make_shared<const Brush>(brush));
}

void ObjectTable::Set(std::uint32_t index, const LogFont& font) {
  Put(index, std::make_shared<const LogFont>(font));
}

void ObjectTable::Set(std::uint32_t index, Palette palette) {
  Put(index, std::make_shared<Palette>(std::move(palette)));
}

void ObjectTable::Delete(std::uint32_t handle) {
  if (handle < objects_.size()) objects_[handle] = {};
}

const GdiObject& ObjectTable::At(std::uint32_t handle) const {
  static const GdiObject kNothing;
  if (handle < objects_.size()) return objects_[handle];
  const std::uint32_t stock = handle - STOCK_OBJECT_BIT;  // huge for an index
  return stock < stock_.size() ? stock_[stock] : kNothing;
}

void ObjectTable::Put(std::uint32_t index, GdiObject object) {
  if (index == 0 || index >= kMostObjects) return;
  if (index >= objects_.size()) objects_.resize(index + 1);
  objects_[index] = std::move(object);
}

GdiObject& ObjectTable::Stock(StockObject handle) {
  return stock_[handle - STOCK_OBJECT_BIT];
}

void ObjectTable::MakeStockFonts() {
  constexpr std::int32_t kRegular = 400;
  constexpr std::int32_t kBold = 700;
  // Made of pixels, these are as high as text without a height, whatever the mapping.
  constexpr std::int32_t kScreen = 0;
  Stock(OEM_FIXED_FONT) = Font(u"Terminal", 12, kRegular, OEM_CHARSET);
  Stock(ANSI_FIXED_FONT) = Font(u"Courier", 12, kRegular, ANSI_CHARSET);
  Stock(ANSI_VAR_FONT) = Font(u"MS Sans Serif", 12, kRegular, ANSI_CHARSET);
  Stock(SYSTEM_FONT) = Font(u"System", kScreen, kBold, ANSI_CHARSET);
  Stock(DEVICE_DEFAULT_FONT) = Font(u"System", kScreen, kBold, ANSI_CHARSET);
  Stock(SYSTEM_FIXED_FONT) = Font(u"Fixedsys", kScreen, kRegular, ANSI_CHARSET);
  Stock(DEFAULT_GUI_FONT) = Font(u"MS Shell Dlg", -11, kRegular, ANSI_CHARSET);
}

}  // namespace kelvane
