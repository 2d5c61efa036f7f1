#include "samples.h"

#include "drawing_samples.h"
#include "state_samples.h"

namespace kelvane::samples {

std::vector<Sample> AllSamples() {
  return {{"lines", Lines()},           {"polygons", Polygons()},
          {"curves", Curves()},         {"shapes", Shapes()},
          {"transforms", Transforms()}, {"chart", Chart()},
          {"paths", Paths()},           {"pens", Pens()},
          {"nested", Nested()},         {"bitmaps", Bitmaps()}};
}

}  // namespace kelvane::samples
