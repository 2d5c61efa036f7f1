#include "hostile/hostile_emfplus.h"

namespace kelvane::test {
namespace {

// Numbers of objects.

PlusRecords ObjectsBeyondTheSlots() {
  PlusRecords records;
  for (std::uint32_t slot = 64; slot < 256; ++slot)
    records.Object(kPlusBrush, slot, SolidBrush());
  return records;
}

/// Every record that names objects, all of them in a slot.
PlusRecords UsesOf(std::uint32_t slot) {
  PlusRecords uses;
  const std::uint32_t named = slot & 0xFF;
  for (std::uint32_t type = 0x400A; type <= 0x401C; ++type)
    uses.Record(type, kPlusSmall | named, Bytes().U32(slot).U32(1).Zeros(64));
  for (const std::uint32_t type : {0x4033U, 0x4034U, 0x4036U})
    uses.Record(type, named, Bytes().U32(slot).Zeros(64));
  return uses;
}

PlusRecords UsesOfAFont() {
  const Bytes font = Bytes().F32(9).U32(0).U32(0).U32(0).U32(2).Utf16(u"ab");
  return Object(kPlusFont, 1, font).Append(UsesOf(1));
}

PlusRecords UsesOfUnknownKinds() {
  PlusRecords records;
  for (std::uint32_t kind = 10; kind < 128; ++kind)
    records.Object(kind, 1, Bytes().Zeros(64));
  return records.Append(UsesOf(1));
}

std::vector<HostileEmfPlus> BadNumbersOfObjects() {
  return {
      {"slots_that_there_are_not", ObjectsBeyondTheSlots, kNoPieces},
      {"uses_of_empty_slots", [] { return UsesOf(1); }, kNoObject},
      {"uses_of_the_last_slot", [] { return UsesOf(63); }, kNoObject},
      {"uses_of_the_slot_behind_it", [] { return UsesOf(64); }, kNoObject},
      {"uses_of_slots_that_there_are_not", [] { return UsesOf(kAll); }, kNoObject},
      {"uses_of_another_kind", UsesOfAFont, kNoObject},
      {"kinds_that_there_are_not", UsesOfUnknownKinds, kUnreadable},
      {"a_brush_that_was_replaced_by_nothing",
       [] {
         return Joined(
             {Object(kPlusBrush, 1, SolidBrush()), Object(kPlusBrush, 1, Bytes()), FillSquare(1)});
       },
       kNoObject},
  };
}

// Counts.

/// The count where each record of many has it, with next to nothing behind it.
PlusRecords ManyPromised(std::uint32_t count, std::uint32_t flags) {
  const Bytes behind = Bytes().Each({1, 2, 0x83, 0x84, 5, 6, 7, 8});
  PlusRecords records;
  const auto add = [&](std::uint32_t type, Bytes fields) {
    records.Record(type, flags, fields.U32(count).Append(behind.Data()));
  };
  for (const std::uint32_t type : {0x400AU, 0x400CU})
    add(type, Bytes().U32(kBlue));
  for (const std::uint32_t type : {0x400BU, 0x400DU, 0x4019U})
    add(type, Bytes());
  add(0x4016, Bytes().U32(kBlue).F32(1));
  add(0x4017, Bytes().F32(1));
  add(0x4018, Bytes().F32(1).U32(count).U32(count));
  add(0x401B, Bytes().U32(kNoAttributes).U32(2).Zeros(16));
  add(0x401C, Bytes().U32(kBlue).U32(kAll));
  add(0x4036, Bytes().U32(kBlue).U32(1).U32(1));
  return records;
}

/// The same of objects, a slot each.
PlusRecords ObjectsPromised(std::uint32_t count) {
  const Bytes rest = Bytes().U32(count).Zeros(8);
  const auto with = [&](Bytes fields) { return fields.Append(rest.Data()); };
  const Bytes gradient = Bytes().U32(3).U32(0).U32(4).U32(kBlue).F32(1).F32(1);
  Bytes points = gradient;
  Bytes linear = Bytes().U32(4).U32(4).U32(0).F32(0).F32(0).F32(9).F32(9).Zeros(16);
  PlusRecords records;
  records.Object(kPlusBrush, 1, with(gradient))
      .Object(kPlusBrush, 2, with(points.U32(0)))
      .Object(kPlusBrush, 3, with(linear))
      .Object(kPlusPen, 4, Bytes().U32(0).U32(0x100).U32(0).F32(1).Append(rest.Data()))
      .Object(kPlusPen, 5, Bytes().U32(0).U32(0x400).U32(0).F32(1).Append(rest.Data()))
      .Object(kPlusPen, 6, Bytes().U32(0).U32(0x800).U32(0).F32(1).Append(rest.Data()))
      .Object(kPlusRegion, 7, Bytes().U32(count).U32(2))
      .Object(kPlusRegion, 8, Bytes().U32(0).U32(0x10000001).Append(rest.Data()))
      .Object(kPlusImage, 9, Bytes().U32(2).U32(kEmfImage).Append(rest.Data()))
      .Object(kPlusFont, 10, Bytes().F32(9).U32(0).U32(0).U32(0).Append(rest.Data()))
      .Object(kPlusFormat, 11, Bytes().Zeros(44).Append(rest.Data()));
  for (const std::uint32_t flags : {0U, kPlusSmall, kPlusRelative, 0x1000U, 0x1800U})
    records.Object(kPlusPath, 12, Bytes().U32(count).U32(flags).Zeros(8));
  return records;
}

std::vector<HostileEmfPlus> BadCounts() {
  std::vector<HostileEmfPlus> rows;
  for (const std::uint32_t count : {7U, 0x20000001U, 0x55555556U, 0x7FFFFFFFU, kAll}) {
    const std::string of = "_of_" + std::to_string(count);
    rows.push_back({"numbers" + of, [=] { return ManyPromised(count, kPlusColor); }, kTooShort});
    rows.push_back(
        {"integers" + of, [=] { return ManyPromised(count, kPlusColor | kPlusSmall); }, kTooShort});
    rows.push_back({"relative" + of,
                    [=] { return ManyPromised(count, kPlusColor | kPlusRelative); }, kTooShort});
    rows.push_back({"objects" + of, [=] { return ObjectsPromised(count); }, kUnreadable});
  }
  return rows;
}

// Objects in pieces.

PlusRecords Piece(std::uint32_t total, std::size_t bytes) {
  return PlusRecords().Record(0x4008, kPlusMore | kPlusBrush << 8 | 1,
                              Bytes().U32(total).Zeros(bytes));
}

/// Pieces that each say another size of the whole.
PlusRecords PiecesOfOtherTotals() {
  PlusRecords pieces;
  for (std::uint32_t i = 0; i < 100000; ++i)
    pieces.Append(Piece(1000 + i, 8));
  return pieces.Append(FillSquare(1));
}

std::vector<HostileEmfPlus> BadPieces() {
  return {
      {"pieces_without_end",
       [] {
         return Joined({Repeated(Piece(kAll, 8), 100000), FillSquare(1)});
       },
       kNoObject},
      {"pieces_of_other_totals", PiecesOfOtherTotals, kNoObject},
      {"pieces_of_more_than_they_said", [] { return Repeated(Piece(8, 800), 1000); }, kNoPieces},
      {"pieces_of_nothing", [] { return Repeated(Piece(0, 0), 1000); }, kUnreadable},
      {"a_piece_without_a_total",
       [] { return PlusRecords().Record(0x4008, kPlusMore | kPlusBrush << 8 | 1, Bytes()); },
       kNoPieces},
  };
}

// States.

PlusRecords Nested(std::uint32_t type, const Bytes& fields, int times, bool areOfOneLabel) {
  PlusRecords records;
  for (int i = 0; i < times; ++i) {
    Bytes data = fields;
    records.Record(type, 2, data.U32(areOfOneLabel ? 7 : static_cast<std::uint32_t>(i)));
  }
  return records;
}

std::vector<HostileEmfPlus> BadStates() {
  constexpr int kMany = 100000;
  const Bytes noFields;
  Bytes boxes = Bytes().F32(0).F32(0).F32(9).F32(9).F32(1).F32(1).F32(10).F32(10);
  return {
      {"saves_without_end", [=] { return Nested(0x4025, noFields, kMany, false); }},
      {"saves_of_one_label",
       [=] {
         return Joined(
             {Nested(0x4025, noFields, kMany, true), Nested(0x4026, noFields, kMany, true)});
       }},
      {"saves_that_end_at_the_first",
       [=] {
         return Joined(
             {Nested(0x4025, noFields, kMany, false), Nested(0x4026, noFields, kMany, false)});
       }},
      {"restores_of_nothing", [=] { return Nested(0x4026, noFields, kMany, false); }},
      {"containers_without_end", [=] { return Nested(0x4028, noFields, kMany, false); }},
      {"containers_of_boxes_without_end", [=] { return Nested(0x4027, boxes, kMany, false); }},
      {"containers_that_end_as_saves",
       [=] {
         return Joined(
             {Nested(0x4028, noFields, kMany, false), Nested(0x4026, noFields, kMany, false)});
       }},
  };
}

// Anything.

/// Every type of record, known or not, with any flags and these bytes.
PlusRecords OfEveryType(unsigned char byte, std::size_t size) {
  PlusRecords records;
  for (std::uint32_t type = 0x3FF0; type < 0x4050; ++type) {
    if (type == 0x4001 || type == 0x4004) continue;  // they choose what is played
    for (const std::uint32_t flags : {0U, 0xFFFFU, 0x4000U, 0x0801U})
      records.Record(type, flags, Bytes().Append(std::vector<unsigned char>(size, byte)));
  }
  return records;
}

std::vector<HostileEmfPlus> BadRecords() {
  constexpr const char* kUnknown = "it is of a kind that is not played";
  return {
      {"records_without_fields", [=] { return OfEveryType(0, 0); }, kUnknown},
      {"records_of_zeros", [=] { return OfEveryType(0, 64); }, kUnknown},
      {"records_of_ones", [=] { return OfEveryType(1, 64); }, kUnknown},
      {"records_of_all_bits", [=] { return OfEveryType(0xFF, 64); }, kUnknown},
  };
}

}  // namespace

std::vector<HostileEmfPlus> EmfPlusOfBadRecords() {
  std::vector<HostileEmfPlus> all;
  for (const auto& group :
       {BadNumbersOfObjects(), BadCounts(), BadPieces(), BadStates(), BadRecords()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}

}  // namespace kelvane::test
