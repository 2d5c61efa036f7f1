#include "gdi/code_page.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <iterator>

#include <iconv.h>

#include "gdi/face_name.h"

namespace kelvane {
namespace {

constexpr char16_t kNoCharacter = 0xFFFD;
constexpr std::size_t kFirstHigh = 0x80;  // bytes below are ASCII in every code page

/// The system's converter from a code page.
class Converter {
 public:
  enum class Outcome { kUnit, kNothing, kNeedsMore };

  explicit Converter(const char* codePage) : descriptor_(iconv_open("UTF-16LE", codePage)) {}
  ~Converter() {
    if (IsOpen()) iconv_close(descriptor_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  /// @param count  of the bytes, 1 or 2.
  /// @param unit   set when they stand for one.
  Outcome Convert(std::array<char, 2> bytes, std::size_t count, char16_t& unit) {
    if (!IsOpen()) return Outcome::kNothing;
    std::array<char, 8> units{};
    char* input = bytes.data();
    char* output = units.data();
    std::size_t room = units.size();
    iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(descriptor_, &input, &count, &output, &room) == kFailed) {
      return errno == EINVAL ? Outcome::kNeedsMore : Outcome::kNothing;
    }
    // Letters that could be composed with a mark behind them are held back until now.
    iconv(descriptor_, nullptr, nullptr, &output, &room);
    if (units.size() - room != 2) return Outcome::kNothing;
    const auto low = static_cast<unsigned char>(units[0]);
    const auto high = static_cast<unsigned char>(units[1]);
    unit = static_cast<char16_t>(high << 8 | low);
    return Outcome::kUnit;
  }

 private:
  static constexpr auto kFailed = static_cast<std::size_t>(-1);

  [[nodiscard]] bool IsOpen() const {
    // The only failure of iconv_open is a pointer made of -1.
    return descriptor_ != reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr)
  }

  iconv_t descriptor_;
};

/// A code page of at most two bytes a character, as tables.
class CodePage {
 public:
  explicit CodePage(const char* name);

  void Decode(std::string_view bytes, DecodedBytes& decoded) const;

 private:
  static constexpr char16_t kLead = 0;  // in singles_: the byte begins a pair
  static constexpr std::size_t kTrails = 256;

  void AddPairs(Converter& converter, std::size_t lead);

  std::array<char16_t, 0x80> singles_{};  // for bytes from kFirstHigh on
  std::vector<char16_t> pairs_;  // kTrails for each byte from kFirstHigh on, or none at all
};

CodePage::CodePage(const char* name) {
  Converter converter(name);
  for (std::size_t i = 0; i < singles_.size(); ++i) {
    const std::size_t byte = kFirstHigh + i;
    switch (converter.Convert({static_cast<char>(byte)}, 1, singles_[i])) {
      case Converter::Outcome::kUnit:
        break;
      case Converter::Outcome::kNothing:
        // Windows takes a byte that a code page leaves free for the control of its number.
        singles_[i] = byte < 0xA0 ? static_cast<char16_t>(byte) : kNoCharacter;
        break;
      case Converter::Outcome::kNeedsMore:
        singles_[i] = kLead;
        AddPairs(converter, byte);
        break;
    }
  }
}

void CodePage::AddPairs(Converter& converter, std::size_t lead) {
  pairs_.resize(singles_.size() * kTrails, kNoCharacter);
  for (std::size_t trail = 0; trail < kTrails; ++trail) {
    converter.Convert({static_cast<char>(lead), static_cast<char>(trail)}, 2,
                      pairs_[(lead - kFirstHigh) * kTrails + trail]);
  }
}

void CodePage::Decode(std::string_view bytes, DecodedBytes& decoded) const {
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    char16_t unit = byte < kFirstHigh ? char16_t{byte} : singles_[byte - kFirstHigh];
    decoded.firstBytes.push_back(static_cast<std::uint32_t>(at));
    if (byte >= kFirstHigh && unit == kLead) {
      unit = kNoCharacter;
      if (at + 1 < bytes.size()) {
        const auto trail = static_cast<unsigned char>(bytes[at + 1]);
        unit = pairs_[(byte - kFirstHigh) * kTrails + trail];
      }
      if (unit != kNoCharacter) ++at;  // or else the second byte stands for itself
    }
    decoded.text.push_back(unit);
  }
}

/// Made when text first needs it, and kept.
template <int number>
const CodePage& Page() {
  static const CodePage page(("CP" + std::to_string(number)).c_str());
  return page;
}

const CodePage& MacRoman() {
  static const CodePage page("MACINTOSH");
  return page;
}

struct Script {
  CharacterSet charSet;
  std::u16string_view suffix;  // of names of faces; empty when there is none
  const CodePage& (*page)();
};

constexpr Script kScripts[] = {
    {ANSI_CHARSET, u"", Page<1252>},
    {DEFAULT_CHARSET, u"", Page<1252>},  // pictures do not tell the system that they are from
    {MAC_CHARSET, u"", MacRoman},
    {SHIFTJIS_CHARSET, u"", Page<932>},
    {HANGUL_CHARSET, u"", Page<949>},
    {JOHAB_CHARSET, u"", Page<1361>},
    {GB2312_CHARSET, u"", Page<936>},
    {CHINESEBIG5_CHARSET, u"", Page<950>},
    {GREEK_CHARSET, u" Greek", Page<1253>},
    {TURKISH_CHARSET, u" Tur", Page<1254>},
    {VIETNAMESE_CHARSET, u"", Page<1258>},
    {HEBREW_CHARSET, u"", Page<1255>},
    {ARABIC_CHARSET, u"", Page<1256>},
    {BALTIC_CHARSET, u" Baltic", Page<1257>},
    {RUSSIAN_CHARSET, u" Cyr", Page<1251>},
    {THAI_CHARSET, u"", Page<874>},
    {EASTEUROPE_CHARSET, u" CE", Page<1250>},
    {OEM_CHARSET, u"", Page<437>},  // where the other page of the system is 1252
};

bool HasSuffix(std::u16string_view faceName, std::u16string_view suffix) {
  return !suffix.empty() && faceName.size() > suffix.size() &&
         IsSameFaceName(faceName.substr(faceName.size() - suffix.size()), suffix);
}

/// @return the code page of a font; null when its bytes are codes of symbols.
const CodePage* PageOf(CharacterSet charSet, std::u16string_view faceName) {
  const auto* script = std::ranges::find_if(
      kScripts, [faceName](const Script& each) { return HasSuffix(faceName, each.suffix); });
  if (script != std::end(kScripts)) return &script->page();
  if (charSet == SYMBOL_CHARSET) return nullptr;
  script = std::ranges::find(kScripts, charSet, &Script::charSet);
  return script != std::end(kScripts) ? &script->page() : &Page<1252>();
}

void DecodeSymbols(std::string_view bytes, DecodedBytes& decoded) {
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    const int unit = byte < 0x20 ? byte : 0xF000 + byte;
    decoded.text.push_back(static_cast<char16_t>(unit));
    decoded.firstBytes.push_back(static_cast<std::uint32_t>(at));
  }
}

}  // namespace

DecodedBytes DecodeBytes(std::string_view bytes, CharacterSet charSet,
                         std::u16string_view faceName) {
  DecodedBytes decoded;
  decoded.text.reserve(bytes.size());
  decoded.firstBytes.reserve(bytes.size());
  if (const CodePage* page = PageOf(charSet, faceName)) {
    page->Decode(bytes, decoded);
  } else {
    DecodeSymbols(bytes, decoded);
  }
  return decoded;
}

}  // namespace kelvane
