#include "gdiplus/string_digits.h"

#include <algorithm>
#include <iterator>

namespace kelvane::gdiplus {
namespace {

/// A language with digits of its own, by the low bits of its identifiers.
struct LanguageWithDigits {
  std::uint32_t language;
  char16_t zero;
};

constexpr LanguageWithDigits kLanguagesWithDigits[] = {
    {0x01, 0x0660},  // Arabic
    {0x1E, 0x0E50},  // Thai
    {0x20, 0x06F0},  // Urdu
    {0x29, 0x06F0},  // Persian
    {0x39, 0x0966},  // Hindi
    {0x45, 0x09E6},  // Bengali
    {0x46, 0x0A66},  // Punjabi
    {0x47, 0x0AE6},  // Gujarati
    {0x48, 0x0B66},  // Odia
    {0x49, 0x0BE6},  // Tamil
    {0x4A, 0x0C66},  // Telugu
    {0x4B, 0x0CE6},  // Kannada
    {0x4C, 0x0D66},  // Malayalam
    {0x4D, 0x09E6},  // Assamese
    {0x4E, 0x0966},  // Marathi
    {0x50, 0x1810},  // Mongolian
    {0x51, 0x0F20},  // Tibetan
    {0x53, 0x17E0},  // Khmer
    {0x54, 0x0ED0},  // Lao
    {0x61, 0x0966},  // Nepali
    {0x63, 0x06F0},  // Pashto
};

}  // namespace

char16_t ZeroOf(const EmfPlusStringFormat& format) {
  const bool isAskedFor = format.digits == EmfPlusDigitSubstitution::kNational ||
                          format.digits == EmfPlusDigitSubstitution::kTraditional;
  if (!isAskedFor) return u'0';
  constexpr std::uint32_t kPrimary = 0x3FF;
  const std::uint32_t language =
      (format.digitLanguage != 0 ? format.digitLanguage : format.language) & kPrimary;
  const auto* found =
      std::ranges::find(kLanguagesWithDigits, language, &LanguageWithDigits::language);
  return found != std::end(kLanguagesWithDigits) ? found->zero : u'0';
}

}  // namespace kelvane::gdiplus
