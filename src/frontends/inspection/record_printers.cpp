#include "frontends/inspection/record_printers.h"

#include <array>

#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

using PrinterTable = std::array<FieldPrinter, kEmfRecordTypes>;

PrinterTable AllPrinters() {
  PrinterTable table{};
  for (const auto& family : {BitmapPrinters(), ClipPrinters(), ColorPrinters(), CommentPrinters(),
                             ControlPrinters(), LinePrinters(), MappingPrinters(), ObjectPrinters(),
                             RegionPrinters(), ShapePrinters(), StatePrinters(), TextPrinters()}) {
    for (const PrinterRow& row : family)
      table[row.type] = row.print;
  }
  return table;
}

}  // namespace

FieldPrinter FindPrinter(std::uint32_t type) {
  static const PrinterTable kPrinters = AllPrinters();
  return type < kPrinters.size() ? kPrinters[type] : nullptr;
}

}  // namespace kelvane
