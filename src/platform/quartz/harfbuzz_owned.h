#pragma once

#include <memory>

#include "platform/quartz/harfbuzz.h"

namespace kelvane {

struct HarfBuzzDestroyer {
  void operator()(hb_blob_t* blob) const { hb_blob_destroy(blob); }
  void operator()(hb_face_t* face) const { hb_face_destroy(face); }
  void operator()(hb_font_t* font) const { hb_font_destroy(font); }
  void operator()(hb_font_funcs_t* functions) const { hb_font_funcs_destroy(functions); }
  void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
  void operator()(hb_subset_input_t* input) const { hb_subset_input_destroy(input); }
  void operator()(hb_subset_plan_t* plan) const { hb_subset_plan_destroy(plan); }
};

/// An object of HarfBuzz, owned.
template <class T>
using HarfBuzzOwned = std::unique_ptr<T, HarfBuzzDestroyer>;

}  // namespace kelvane
