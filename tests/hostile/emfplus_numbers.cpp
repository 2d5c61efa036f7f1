#include <limits>

#include "hostile/hostile_emfplus.h"

namespace kelvane::test {
namespace {

constexpr float kBadNumbers[] = {std::numeric_limits<float>::quiet_NaN(),
                                 std::numeric_limits<float>::infinity(),
                                 -std::numeric_limits<float>::infinity(),
                                 std::numeric_limits<float>::max(),
                                 std::numeric_limits<float>::lowest(),
                                 std::numeric_limits<float>::denorm_min(),
                                 0,
                                 -1};

/// Writes numbers, of which one is bad, or all are. What there are several kinds of starts anew
/// with each of them, so that they are bad in the same place.
class Numbers {
 public:
  static constexpr int kEverywhere = -1;

  /// @param place  of the bad one, in the order of their writing.
  Numbers(float bad, int place) : bad_(bad), place_(place) {}

  /// @return so many numbers. @param good  those that are meant to be there.
  Bytes operator()(const std::vector<float>& good) {
    Bytes bytes;
    for (const float number : good)
      bytes.F32(place_ == kEverywhere || place_ == count_++ ? bad_ : number);
    return bytes;
  }

  void StartAnew() { count_ = 0; }

  [[nodiscard]] int Count() const { return count_; }

 private:
  float bad_;
  int place_;
  int count_ = 0;
};

const std::vector<float> kMatrix = {1, 0.5F, -0.5F, 1, 3, 4};
const std::vector<float> kBox = {10, 10, 50, 40};
const std::vector<float> kTriangle = {10, 10, 60, 20, 30, 70};
const std::vector<float> kAngles = {30, 200};

Bytes WithPoints(Bytes before, const Bytes& points) {
  return before.U32(3).Append(points.Data());
}

void AddTransforms(PlusRecords& records, Numbers& numbers) {
  for (const std::uint32_t order : {0U, 0x2000U}) {
    numbers.StartAnew();
    records.Record(0x402A, 0, numbers(kMatrix)).Record(0x402C, order, numbers(kMatrix));
    records.Record(0x402D, order, numbers({1, 2})).Record(0x402E, order, numbers({2, 3}));
    records.Record(0x402F, order, numbers({45}));
    for (std::uint32_t unit = 0; unit < 8; ++unit)
      records.Record(0x4030, unit, numbers({1}));
    records.Append(FillSquare(1)).Append(DrawLine(2));
  }
}

void AddContainers(PlusRecords& records, Numbers& numbers) {
  for (std::uint32_t unit = 0; unit < 8; ++unit) {
    numbers.StartAnew();
    Bytes boxes = numbers(kBox);
    records.Record(0x4027, unit, boxes.Append(numbers(kBox).Data()).U32(100));
    records.Append(FillSquare(1)).Append(DrawLine(2));
    records.Record(0x4029, 0, Bytes().U32(100));
  }
}

void AddClips(PlusRecords& records, Numbers& numbers) {
  const Bytes path = WithPoints(Bytes(), Bytes().U32(0).Append(numbers(kTriangle).Data()));
  records.Object(kPlusPath, 3, Bytes().Append(path.Data()).Each({0, 1, 0x81}));
  const Bytes box = numbers(kBox);
  records.Object(kPlusRegion, 4, Bytes().U32(0).U32(0x10000000).Append(box.Data()));
  for (std::uint32_t mode = 0; mode < 6; ++mode) {
    const std::uint32_t flags = mode << 8;
    records.Record(0x4032, flags, numbers(kBox)).Record(0x4033, flags | 3);
    records.Record(0x4034, flags | 4).Record(0x4035, 0, numbers({3, 4}));
    records.Append(FillSquare(1));
  }
  records.Record(0x4013, kPlusColor | 4, Bytes().U32(kBlue));
}

/// A cap of its own, with a path to be stroked.
Bytes PathCap(Numbers& numbers) {
  const Bytes path =
      WithPoints(Bytes().U32(kPlusVersion),
                 Bytes().U32(0).Append(numbers(kTriangle).Data()).Each({0, 1, 1, 0}));
  Bytes cap = Bytes().U32(kPlusVersion).U32(0).U32(2).U32(0).Append(numbers({1}).Data());
  cap.U32(0).U32(0).U32(0).Append(numbers({10, 1, 0, 0, 0, 0}).Data());
  return cap.U32(static_cast<std::uint32_t>(path.Size())).Append(path.Data());
}

Bytes ArrowCap(Numbers& numbers) {
  Bytes cap = Bytes().U32(kPlusVersion).U32(1).Append(numbers({3, 4, 1}).Data());
  cap.U32(1).U32(0).U32(0).U32(0);
  return cap.Append(numbers({10, 1, 0, 0, 0, 0}).Data());
}

void AddPens(PlusRecords& records, Numbers& numbers) {
  constexpr std::uint32_t kAllFields = 0x1FFF;
  for (const std::uint32_t dashCap : {0U, 2U, 3U}) {
    for (std::uint32_t unit = 0; unit < 7; ++unit) {
      numbers.StartAnew();
      const Bytes start = PathCap(numbers);
      const Bytes end = ArrowCap(numbers);
      Bytes pen = Bytes().U32(0).U32(kAllFields).U32(unit).Append(numbers({3}).Data());
      pen.Append(numbers(kMatrix).Data()).U32(0xFF).U32(0xFF).U32(2);
      pen.Append(numbers({10}).Data()).U32(5).U32(dashCap).Append(numbers({1}).Data());
      pen.U32(2).Append(numbers({2, 1}).Data()).U32(unit % 2);
      pen.U32(4).Append(numbers({0, 0.25F, 0.5F, 1}).Data());
      pen.U32(static_cast<std::uint32_t>(start.Size())).Append(start.Data());
      pen.U32(static_cast<std::uint32_t>(end.Size())).Append(end.Data());
      records.Object(kPlusPen, 3, pen.U32(kPlusVersion).Append(SolidBrush().Data()));
      records.Append(DrawLine(3)).Record(0x400F, 3, numbers(kBox));
    }
  }
}

void AddGradients(PlusRecords& records, Numbers& numbers) {
  constexpr std::uint32_t kMapped = 2;
  for (const std::uint32_t blend : {4U, 8U}) {
    for (std::uint32_t wrap = 0; wrap < 5; ++wrap) {
      numbers.StartAnew();
      const auto addBlend = [&](Bytes& brush) {
        brush.U32(3).Append(numbers({0, 0.5F, 1}).Data());
        blend == 4 ? brush.U32(kBlue).U32(0).U32(kAll) : brush.Append(numbers({0, 1, 0}).Data());
      };
      Bytes linear = Bytes().U32(4).U32(kMapped | blend).U32(wrap).Append(numbers(kBox).Data());
      linear.U32(kBlue).U32(kAll).U32(kBlue).U32(kAll).Append(numbers(kMatrix).Data());
      addBlend(linear);
      Bytes path = Bytes().U32(3).U32(kMapped | blend | 0x40).U32(wrap).U32(kBlue);
      path = WithPoints(path.Append(numbers({30, 30}).Data()).U32(1).U32(kAll), numbers(kTriangle));
      path.Append(numbers(kMatrix).Data());
      addBlend(path);
      path.U32(2).Append(numbers({0.5F, 0.5F}).Data());
      records.Object(kPlusBrush, 3, linear).Append(FillSquare(3));
      records.Object(kPlusBrush, 3, path).Append(FillSquare(3));
    }
  }
}

void AddTextures(PlusRecords& records, Numbers& numbers) {
  for (std::uint32_t wrap = 0; wrap < 5; ++wrap) {
    numbers.StartAnew();
    Bytes brush = Bytes().U32(2).U32(2).U32(wrap).Append(numbers(kMatrix).Data());
    brush.U32(kPlusVersion).U32(1).U32(1).U32(1).U32(4).U32(0x26200A).U32(0).U32(kBlue);
    records.Object(kPlusBrush, 3, brush).Append(FillSquare(3));
  }
}

void AddFigures(PlusRecords& records, Numbers& numbers) {
  const Bytes color = Bytes().U32(kBlue);
  const auto filled = [&](const Bytes& fields) { return Bytes().U32(kBlue).Append(fields.Data()); };
  const auto angled = [&] { return numbers(kAngles).Append(numbers(kBox).Data()); };
  records.Record(0x400A, kPlusColor, filled(Bytes().U32(1).Append(numbers(kBox).Data())));
  records.Record(0x400B, 2, Bytes().U32(1).Append(numbers(kBox).Data()));
  records.Record(0x400C, kPlusColor, filled(WithPoints(Bytes(), numbers(kTriangle))));
  records.Record(0x400D, 2, WithPoints(Bytes(), numbers(kTriangle)));
  records.Record(0x400E, kPlusColor, filled(numbers(kBox)));
  records.Record(0x400F, 2, numbers(kBox));
  records.Record(0x4010, kPlusColor, filled(angled()));
  records.Record(0x4011, 2, angled()).Record(0x4012, 2, angled());
  records.Record(0x4016, kPlusColor, filled(WithPoints(numbers({1}), numbers(kTriangle))));
  records.Record(0x4017, 2, WithPoints(numbers({1}), numbers(kTriangle)));
  records.Record(0x4018, 2, WithPoints(numbers({1}).U32(0).U32(2), numbers(kTriangle)));
  records.Record(0x4019, 2, Bytes().U32(4).F32(0).F32(0).Append(numbers(kTriangle).Data()));
}

void AddImages(PlusRecords& records, Numbers& numbers) {
  const Bytes pixel = Bytes().U32(1).U32(1).U32(1).U32(4).U32(0x26200A).U32(0).U32(kBlue);
  records.Object(kPlusImage, 3, pixel);
  records.Object(kPlusImage, 4, ImageOf(FileOf(FillSquare(1)), kEmfImage));
  for (const std::uint32_t image : {3U, 4U}) {
    const Bytes from = Bytes().U32(kNoAttributes).U32(2).Append(numbers({0, 0, 1, 1}).Data());
    records.Record(0x401A, image, Bytes().Append(from.Data()).Append(numbers(kBox).Data()));
    records.Record(0x401B, image, WithPoints(from, numbers(kTriangle)));
  }
}

void AddTexts(PlusRecords& records, Numbers& numbers) {
  for (std::uint32_t unit = 0; unit < 7; ++unit) {
    numbers.StartAnew();
    Bytes font = numbers({12}).U32(unit).U32(12).U32(0).U32(4).Utf16(u"Sans");
    records.Object(kPlusFont, 3, font);
    Bytes format = Bytes().U32(unit % 4).U32(0).U32(unit % 3).U32(unit % 3).U32(0).U32(0);
    format.Append(numbers({5}).Data()).U32(1).Append(numbers({0.1F, 0.1F, 1}).Data());
    format.U32(unit % 6).U32(2).U32(0).Append(numbers({20, 30}).Data());
    records.Object(kPlusFormat, 4, format);
    Bytes string = Bytes().U32(kBlue).U32(4).U32(8).Append(numbers(kBox).Data());
    records.Record(0x401C, kPlusColor | 3, string.Utf16(u"a&b\tcd e"));
    Bytes glyphs = Bytes().U32(kBlue).U32(1).U32(1).U32(2).Utf16(u"ab");
    glyphs.Append(numbers({1, 2, 3, 4}).Data()).Append(numbers(kMatrix).Data());
    records.Record(0x4036, kPlusColor | 3, glyphs);
  }
}

/// Records with a bad number in each place in turn, and everywhere. What comes of one does not
/// count for the others.
PlusRecords WithBadNumbers(void (*add)(PlusRecords&, Numbers&)) {
  PlusRecords unused;
  Numbers counted(0, -2);
  add(unused, counted);
  PlusRecords records;
  records.Object(kPlusBrush, 1, SolidBrush()).Object(kPlusPen, 2, Pen(3));
  for (const float bad : kBadNumbers) {
    for (int place = Numbers::kEverywhere; place < counted.Count(); ++place) {
      Numbers numbers(bad, place);
      records.Record(0x4025, 0, Bytes().U32(1));
      add(records, numbers);
      records.Record(0x4026, 0, Bytes().U32(1));
    }
  }
  return records;
}

}  // namespace

std::vector<HostileEmfPlus> EmfPlusOfBadNumbers() {
  return {
      {"numbers_of_transforms", [] { return WithBadNumbers(AddTransforms); }},
      {"numbers_of_containers", [] { return WithBadNumbers(AddContainers); }},
      {"numbers_of_clips", [] { return WithBadNumbers(AddClips); }},
      {"numbers_of_pens", [] { return WithBadNumbers(AddPens); }},
      {"numbers_of_gradients", [] { return WithBadNumbers(AddGradients); }},
      {"numbers_of_textures", [] { return WithBadNumbers(AddTextures); }},
      {"numbers_of_figures", [] { return WithBadNumbers(AddFigures); }},
      {"numbers_of_images", [] { return WithBadNumbers(AddImages); }},
      {"numbers_of_texts", [] { return WithBadNumbers(AddTexts); }},
  };
}

}  // namespace kelvane::test
