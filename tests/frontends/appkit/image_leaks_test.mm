#include <cstddef>
#include <functional>
#include <vector>

#import <AppKit/NSImage.h>
#include <gtest/gtest.h>
#include <malloc.h>

#import <kelvane/torvi_emf_image_rep.h>

#include "support/appkit/appkit.h"
#include "support/appkit/replaced_method.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr int kTimes = 1000;
constexpr int kTimesBefore = 100;
constexpr int kAllTimes = kTimesBefore + kTimes;

/// Does something often, each time with a pool of its own.
void Repeat(int times, const std::function<void()>& action) {
  for (int i = 0; i < times; ++i) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    action();
    [pool release];
  }
}

/// @return by how many bytes the memory in use grows when something is done a thousand times, after
///         what is made once has been made.
std::ptrdiff_t GrowthOver(const std::function<void()>& action) {
  Repeat(kTimesBefore, action);
  const std::size_t before = mallinfo2().uordblks;
  Repeat(kTimes, action);
  return static_cast<std::ptrdiff_t>(mallinfo2().uordblks - before);
}

std::vector<unsigned char> Page() {
  return Metafile().Bounds(0, 0, 40, 30).Rectangle({0, 0, 20, 20}).TextOut({5, 20}, u"A").Build();
}

/// The least that one leaked representation of the page would take: its PDF.
constexpr std::ptrdiff_t kLeakOfEach = std::ptrdiff_t{1000} * kTimes;

/// Counts how often the objects of a class are freed, for as long as it lives. One a class.
template <const char* const& kClass>
class FreedObjects {
 public:
  FreedObjects() : method_(kClass, @selector(dealloc), CountAndFree) {
    count_ = 0;
    original_ = method_.Original();
  }

  [[nodiscard]] int Count() const { return count_; }

 private:
  static void CountAndFree(id self, SEL name) {
    ++count_;
    original_(self, name);
  }

  static inline int count_ = 0;
  static inline void (*original_)(id, SEL) = nullptr;
  ReplacedMethod<void, id, SEL> method_;
};

constexpr const char* kMetafileClass = "TorviEMFImageRep";
constexpr const char* kPdfClass = "KelvanePDFImageRep";

class AThousandImages : public DrawingTest {
 protected:
  const FreedObjects<kMetafileClass> metafiles_;
  const FreedObjects<kPdfClass> pdfs_;
};

TEST_F(AThousandImages, LeaveNothingBehind) {
  NSData* data = DataOf(Page());
  EXPECT_LT(GrowthOver([&] {
              [[[TorviEMFImageRep alloc] initWithData:data] release];
              EXPECT_NE([TorviEMFImageRep imageRepWithData:data], nil);
            }),
            kLeakOfEach);
  EXPECT_EQ(metafiles_.Count(), 2 * kAllTimes);
  EXPECT_EQ(pdfs_.Count(), 2 * kAllTimes);
}

TEST_F(AThousandImages, LeaveNothingBehindWhenTheyFail) {
  std::vector<unsigned char> bytes = Page();
  bytes.resize(88);
  NSData* data = DataOf(bytes);
  EXPECT_LT(GrowthOver([&] { EXPECT_EQ([TorviEMFImageRep imageRepWithData:data], nil); }),
            kLeakOfEach / 10);
  EXPECT_EQ(metafiles_.Count(), kAllTimes);
}

/// What AppKit does for any image that is drawn to, some of which it forgets.
void DrawNothingToAnImage() {
  NSImage* image = [[NSImage alloc] initWithSize:NSMakeSize(40, 30)];
  [image lockFocus];
  [image unlockFocus];
  [image release];
}

TEST_F(AThousandImages, LeaveNoMoreBehindThanAppKitDoesWhenTheyAreDrawn) {
  NSData* data = DataOf(Page());
  (void)PictureOf(40, 30, [&] {
    const std::ptrdiff_t unavoidable = GrowthOver(DrawNothingToAnImage);
    const std::ptrdiff_t growth =
        GrowthOver([&] { EXPECT_EQ([[TorviEMFImageRep imageRepWithData:data] draw], YES); });
    EXPECT_LT(growth - unavoidable, kLeakOfEach);
  });
  EXPECT_EQ(pdfs_.Count(), kAllTimes);
}

}  // namespace
}  // namespace kelvane::test
