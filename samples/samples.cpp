#include "samples.h"

#include "drawing_samples.h"
#include "report_sample.h"
#include "state_samples.h"
#include "text_samples.h"

namespace kelvane::samples {

std::vector<Sample> AllSamples() {
  return {{"lines", Lines()},
          {"polygons", Polygons()},
          {"curves", Curves()},
          {"shapes", Shapes()},
          {"transforms", Transforms()},
          {"chart", Chart()},
          {"paths", Paths()},
          {"pens", Pens()},
          {"nested", Nested()},
          {"bitmaps", Bitmaps()},
          {"text", Text()},
          {"scripts", Scripts()},
          {"report", Report()}};
}

}  // namespace kelvane::samples
