#include "platform/svg/svg_woff2.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/quartz/cg_font_subset.h"
#include "platform/quartz/harfbuzz_owned.h"
#include "platform/svg/brotli.h"

namespace kelvane {
namespace {

constexpr hb_tag_t kCharacters = HB_TAG('c', 'm', 'a', 'p');
constexpr hb_tag_t kHead = HB_TAG('h', 'e', 'a', 'd');
constexpr hb_tag_t kNames = HB_TAG('n', 'a', 'm', 'e');
constexpr hb_tag_t kPostScript = HB_TAG('p', 'o', 's', 't');
constexpr hb_tag_t kGlyf = HB_TAG('g', 'l', 'y', 'f');
constexpr hb_tag_t kLoca = HB_TAG('l', 'o', 'c', 'a');

/// Tags that a byte stands for, by their numbers.
constexpr std::array<hb_tag_t, 14> kKnownTags = {kCharacters,
                                                 kHead,
                                                 HB_TAG('h', 'h', 'e', 'a'),
                                                 HB_TAG('h', 'm', 't', 'x'),
                                                 HB_TAG('m', 'a', 'x', 'p'),
                                                 kNames,
                                                 HB_TAG('O', 'S', '/', '2'),
                                                 kPostScript,
                                                 HB_TAG('c', 'v', 't', ' '),
                                                 HB_TAG('f', 'p', 'g', 'm'),
                                                 kGlyf,
                                                 kLoca,
                                                 HB_TAG('p', 'r', 'e', 'p'),
                                                 HB_TAG('C', 'F', 'F', ' ')};
constexpr unsigned char kAnyTag = 63;
constexpr unsigned char kAsItIs = 3 << 6;  // of the two tables that are stored otherwise by default

void AppendNumber(std::string& file, std::size_t number, int bytes) {
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
    file += static_cast<char>(number >> shift & 0xFF);
}

/// WOFF 2.0, 4.1.
void AppendBase128(std::string& file, std::size_t number) {
  int shift = 28;
  while (shift > 0 && number >> shift == 0)
    shift -= 7;
  for (; shift >= 0; shift -= 7)
    file += static_cast<char>((number >> shift & 0x7F) | (shift > 0 ? 0x80 : 0));
}

void AppendEntry(std::string& directory, hb_tag_t tag, std::size_t size) {
  const auto* const known = std::ranges::find(kKnownTags, tag);
  const auto number = static_cast<std::size_t>(known - kKnownTags.begin());
  const unsigned char flags = tag == kGlyf || tag == kLoca ? kAsItIs : 0;
  directory += static_cast<char>(flags | (known == kKnownTags.end() ? kAnyTag : number));
  if (known == kKnownTags.end()) AppendNumber(directory, tag, 4);
  AppendBase128(directory, size);
}

std::size_t Padded(std::size_t size) {
  return (size + 3) / 4 * 4;
}

/// Characters that follow each other and lead to glyphs that do.
struct CharacterRange {
  char32_t first;
  char32_t last;
  CGGlyph glyph;  // of the first
};

std::vector<CharacterRange> RangesOf(const std::map<char32_t, CGGlyph>& characters) {
  std::vector<CharacterRange> ranges;
  for (const auto& [character, glyph] : characters) {
    const bool goesOn = !ranges.empty() && ranges.back().last + 1 == character &&
                        ranges.back().glyph + (character - ranges.back().first) == glyph;
    if (goesOn) {
      ranges.back().last = character;
    } else {
      ranges.push_back({character, character, glyph});
    }
  }
  return ranges;
}

/// One table of all of Unicode (OpenType, cmap, format 12).
std::string CharacterTable(const std::map<char32_t, CGGlyph>& characters) {
  constexpr std::size_t kWindows = 3;
  constexpr std::size_t kAllOfUnicode = 10;
  constexpr std::size_t kStart = 12;  // of what follows the list of one
  constexpr std::size_t kFormat = 12;
  const auto ranges = RangesOf(characters);
  std::string table;
  AppendNumber(table, 0, 2);
  AppendNumber(table, 1, 2);
  AppendNumber(table, kWindows, 2);
  AppendNumber(table, kAllOfUnicode, 2);
  AppendNumber(table, kStart, 4);
  AppendNumber(table, kFormat, 2);
  AppendNumber(table, 0, 2);
  AppendNumber(table, 16 + ranges.size() * 12, 4);
  AppendNumber(table, 0, 4);
  AppendNumber(table, ranges.size(), 4);
  for (const CharacterRange& range : ranges) {
    AppendNumber(table, range.first, 4);
    AppendNumber(table, range.last, 4);
    AppendNumber(table, range.glyph, 4);
  }
  return table;
}

/// A table of no names (OpenType, name, version 0), for there must be one.
std::string NameTable() {
  std::string table;
  AppendNumber(table, 0, 2);
  AppendNumber(table, 0, 2);
  AppendNumber(table, 6, 2);
  return table;
}

/// That glyphs have no names, and nothing of underlines (OpenType, post, version 3).
std::string PostScriptTable() {
  std::string table;
  AppendNumber(table, 0x00030000, 4);
  return table.append(28, '\0');
}

using TableBytes = std::map<hb_tag_t, std::string>;

TableBytes TablesOf(hb_face_t* face) {
  std::array<hb_tag_t, 64> tags = {};
  auto count = static_cast<unsigned>(tags.size());
  hb_face_get_table_tags(face, 0, &count, tags.data());
  TableBytes tables;
  for (unsigned i = 0; i < count; ++i) {
    const HarfBuzzOwned<hb_blob_t> blob(hb_face_reference_table(face, tags[i]));
    const auto bytes = BytesOf(blob.get());
    tables[tags[i]].assign(bytes.begin(), bytes.end());
  }
  return tables;
}

/// Says that the font was compressed, as it must.
void Mark(std::string& head) {
  constexpr std::size_t kFlags = 16;
  constexpr char kWasCompressed = 0x08;
  if (head.size() > kFlags) head[kFlags] = static_cast<char>(head[kFlags] | kWasCompressed);
}

/// Tables one after the other, and what tells of them.
struct Content {
  std::string directory;
  std::string bytes;
  std::size_t fileSize = 12;  // of a font file with these tables

  void Add(hb_tag_t tag, const std::string& table) {
    AppendEntry(directory, tag, table.size());
    bytes += table;
    fileSize += 16 + Padded(table.size());
  }
};

/// The places of glyphs stand behind the glyphs.
Content ContentOf(const TableBytes& tables) {
  Content content;
  for (const auto& [tag, table] : tables) {
    if (tag == kLoca) continue;
    content.Add(tag, table);
    const auto places = tables.find(kLoca);
    if (tag == kGlyf && places != tables.end()) content.Add(kLoca, places->second);
  }
  return content;
}

std::string Compressed(const std::string& bytes) {
  constexpr int kEffort = 6;   // beyond it time grows faster than what it gains
  constexpr int kWindow = 16;  // 64 KiB; a larger one costs more memory than the rest of a document
  std::size_t size = BrotliEncoderMaxCompressedSize(bytes.size());
  std::string compressed(size, '\0');
  if (size == 0 ||
      BrotliEncoderCompress(kEffort, kWindow, BROTLI_MODE_FONT, bytes.size(),
                            reinterpret_cast<const std::uint8_t*>(bytes.data()), &size,
                            reinterpret_cast<std::uint8_t*>(compressed.data())) == BROTLI_FALSE) {
    return {};
  }
  compressed.resize(size);
  return compressed;
}

}  // namespace

std::string Woff2File(const std::string& program, const std::map<char32_t, CGGlyph>& characters) {
  constexpr std::size_t kHeaderSize = 48;
  constexpr std::size_t kNoMore = 20;  // bytes that tell of metadata and private data
  const HarfBuzzOwned<hb_blob_t> blob(hb_blob_create(program.data(),
                                                     static_cast<unsigned>(program.size()),
                                                     HB_MEMORY_MODE_READONLY, nullptr, nullptr));
  const HarfBuzzOwned<hb_face_t> face(hb_face_create(blob.get(), 0));
  TableBytes tables = TablesOf(face.get());
  if (tables.empty()) return {};
  tables[kCharacters] = CharacterTable(characters);
  tables[kNames] = NameTable();
  tables[kPostScript] = PostScriptTable();
  Mark(tables[kHead]);
  const Content content = ContentOf(tables);
  const std::string compressed = Compressed(content.bytes);
  if (compressed.empty()) return {};

  const std::size_t size = kHeaderSize + content.directory.size() + compressed.size();
  std::string file = "wOF2";
  file += std::string_view(program).substr(0, 4);  // the kind of outlines
  AppendNumber(file, Padded(size), 4);
  AppendNumber(file, tables.size(), 2);
  AppendNumber(file, 0, 2);
  AppendNumber(file, content.fileSize, 4);
  AppendNumber(file, compressed.size(), 4);
  AppendNumber(file, 1, 2);  // version 1.0 of what is in it
  AppendNumber(file, 0, 2);
  file.append(kNoMore, '\0').append(content.directory).append(compressed);
  file.resize(Padded(size), '\0');
  return file;
}

}  // namespace kelvane
