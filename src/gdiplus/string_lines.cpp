#include "gdiplus/string_lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace kelvane::gdiplus {
namespace {

/// Characters between which lines may be broken without a space.
bool StandsAlone(char16_t unit) {
  return (unit >= 0x2E80 && unit <= 0xD7A3) || (unit >= 0xF900 && unit <= 0xFAFF) ||
         (unit >= 0xFF00 && unit <= 0xFF60);
}

class LineBreaker {
 public:
  LineBreaker(const MeasuredString& text, const LineRules& rules) : text_(text), rules_(rules) {}

  std::vector<StringLine> Break() {
    for (std::size_t at = 0; at < text_.units.size() && HasRoom();) {
      const std::size_t end = std::min(text_.units.find(u'\n', at), text_.units.size());
      BreakParagraph(at, end);
      at = end + 1;
    }
    return std::move(lines_);
  }

 private:
  /// How lines may end where they are full.
  enum class Cut : std::uint8_t { kBehindWords, kAnywhere };

  [[nodiscard]] bool HasRoom() const { return lines_.size() < rules_.mostLines; }

  void BreakParagraph(std::size_t begin, std::size_t end) {
    do {
      const std::size_t full =
          rules_.wraps ? FullLine(begin, end, rules_.available, Cut::kBehindWords) : end;
      lines_.push_back(LineOf(begin, full));
      const bool isCutOff = lines_.size() == rules_.mostLines && HasMore(full);
      if (isCutOff || (!rules_.wraps && lines_.back().width > Most(rules_.available)))
        Trim(begin, end);
      begin = full;
    } while (begin < end && HasRoom());
  }

  /// What numbers of single precision are off by.
  static double Most(double available) { return available + std::abs(available) * 1e-6; }

  /// @return the end of what a line has room for; behind one character at least.
  [[nodiscard]] std::size_t FullLine(std::size_t begin, std::size_t end, double available,
                                     Cut cut) const {
    const double most = Most(available);
    std::size_t lastBreak = begin;
    double pen = 0;
    for (std::size_t at = begin; at < end; ++at) {
      const double advance = text_.AdvanceAt(at, pen);
      const bool isSpace = text_.units[at] == u' ';
      const bool standsAlone = StandsAlone(text_.units[at]);
      if (!isSpace && advance > 0 && at > begin && pen + advance > most) {
        const bool breaksHere = cut == Cut::kAnywhere || standsAlone || lastBreak == begin;
        return breaksHere ? at : lastBreak;
      }
      pen += advance;
      if (isSpace || standsAlone) lastBreak = at + 1;
    }
    return end;
  }

  [[nodiscard]] double WidthOf(std::size_t begin, std::size_t end, double pen = 0) const {
    const double start = pen;
    for (std::size_t at = begin; at < end; ++at)
      pen += text_.AdvanceAt(at, pen);
    return pen - start;
  }

  [[nodiscard]] StringLine LineOf(std::size_t begin, std::size_t end) const {
    if (!rules_.keepsSpaces) end = WithoutSpaces(begin, end);
    return {begin, end, false, 0, 0, WidthOf(begin, end)};
  }

  [[nodiscard]] std::size_t WithoutSpaces(std::size_t begin, std::size_t end) const {
    while (end > begin && text_.units[end - 1] == u' ')
      --end;
    return end;
  }

  [[nodiscard]] bool HasMore(std::size_t from) const {
    return text_.units.find_first_not_of(u" \n", from) != std::u16string_view::npos;
  }

  /// Makes the last line one that has room for what is left of its paragraph in part only.
  void Trim(std::size_t begin, std::size_t end) {
    using enum EmfPlusStringTrimming;
    switch (rules_.trimming) {
      case kNone:
        return;
      case kCharacter:
        lines_.back() = LineOf(begin, FullLine(begin, end, rules_.available, Cut::kAnywhere));
        return;
      case kWord:
        lines_.back() = LineOf(begin, FullLine(begin, end, rules_.available, Cut::kBehindWords));
        return;
      case kEllipsisCharacter:
        return TrimBehind(begin, end, Cut::kAnywhere);
      case kEllipsisWord:
        return TrimBehind(begin, end, Cut::kBehindWords);
      case kEllipsisPath:
        return TrimInside(begin, end);
    }
  }

  void TrimBehind(std::size_t begin, std::size_t end, Cut cut) {
    const double room = rules_.available - rules_.ellipsis;
    const std::size_t full = WithoutSpaces(begin, FullLine(begin, end, room, cut));
    AddEllipsis(begin, full, full, full);
  }

  /// Leaves out the middle, and keeps the name behind the last separator where there is room.
  void TrimInside(std::size_t begin, std::size_t end) {
    end = WithoutSpaces(begin, end);
    std::size_t tail = end;
    while (tail > begin && text_.units[tail - 1] != u'\\' && text_.units[tail - 1] != u'/')
      --tail;
    if (tail > begin) --tail;
    const double room = rules_.available - rules_.ellipsis;
    if (tail == begin || WidthOf(tail, end) > Most(room)) tail = TailOfWidth(begin, end, room / 2);
    const double rest = room - WidthOf(tail, end);
    const std::size_t front = FullLine(begin, tail, rest, Cut::kAnywhere);
    AddEllipsis(begin, front, tail, end);
  }

  /// @return the start of the longest end of a text that has room.
  [[nodiscard]] std::size_t TailOfWidth(std::size_t begin, std::size_t end, double room) const {
    std::size_t tail = end;
    double width = 0;
    for (std::size_t at = end; at > begin + 1; --at) {
      width += text_.AdvanceAt(at - 1, 0);
      if (width > Most(room)) break;
      if (text_.advances[at - 1] > 0) tail = at - 1;
    }
    return tail;
  }

  void AddEllipsis(std::size_t begin, std::size_t end, std::size_t tailBegin, std::size_t tailEnd) {
    const double pen = WidthOf(begin, end) + rules_.ellipsis;
    lines_.back() = {begin, end, true, tailBegin, tailEnd, pen + WidthOf(tailBegin, tailEnd, pen)};
  }

  const MeasuredString& text_;
  const LineRules& rules_;
  std::vector<StringLine> lines_;
};

}  // namespace

std::vector<StringLine> BreakLines(const MeasuredString& text, const LineRules& rules) {
  return LineBreaker(text, rules).Break();
}

}  // namespace kelvane::gdiplus
