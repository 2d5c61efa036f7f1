// EMF+ that was made to do harm, through the whole tool: it is told in the report, and a page comes
// of what follows.

#include "hostile/hostile_emfplus.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "whole/hostile_page.h"

namespace kelvane::test {

void PrintTo(const HostileEmfPlus& row, std::ostream* out) {
  *out << row.name;
}

namespace {

class AHostileEmfPlus : public HostilePage, public testing::WithParamInterface<HostileEmfPlus> {};

TEST_P(AHostileEmfPlus, IsToldInTheReportAndLeavesAPageOfWhatFollowsIt) {
  Metafile metafile;
  PlusRecords().Header().AddTo(metafile);
  GetParam().make().AddTo(metafile);
  PlusRecords().GetDC().AddTo(metafile);
  ExpectAPageOfWhatFollows(metafile, "--report=report");
  const std::string report = Read("report");
  EXPECT_NE(report.find(GetParam().reported), std::string::npos) << report;
}

INSTANTIATE_TEST_SUITE_P(, AHostileEmfPlus, testing::ValuesIn(HostileEmfPlusRows()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
