#pragma once

#include <string>
#include <vector>

#include "metafile/emf/emf_record_type.h"
#include "support/bytes.h"

namespace kelvane::test {

/// Records of one layout, and what a dump shows of their fields.
struct Sample {
  std::vector<EmfRecordType> types;
  Bytes body;          // behind type and size
  std::string fields;  // behind name and size
};
using Samples = std::vector<Sample>;

/// Of every type that draws.
Samples DrawingSamples();

/// Of every other type.
Samples StateSamples();

/// The samples of all families.
Samples Joined(const std::vector<Samples>& families);

/// What many records begin with, and a transform.
Bytes Bounded();
Bytes Transform();
inline const std::string kBounded = " Bounds=(1,2,3,4)";
inline const std::string kTransform = "(1,0.5,-2,1,10,0)";

}  // namespace kelvane::test
