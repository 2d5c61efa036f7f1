#include "platform/fonts/glyph_outline.h"

namespace kelvane {
namespace {

CGPath& PathIn(void* drawing) {
  return *static_cast<CGPath*>(drawing);
}

void Move(hb_draw_funcs_t* /*functions*/, void* path, hb_draw_state_t* /*state*/, float x, float y,
          void* /*userData*/) {
  PathIn(path).MoveTo({x, y});
}

void Line(hb_draw_funcs_t* /*functions*/, void* path, hb_draw_state_t* /*state*/, float x, float y,
          void* /*userData*/) {
  PathIn(path).LineTo({x, y});
}

void Curve(hb_draw_funcs_t* /*functions*/, void* path, hb_draw_state_t* /*state*/, float x1,
           float y1, float x2, float y2, float x, float y, void* /*userData*/) {
  PathIn(path).CurveTo({x1, y1}, {x2, y2}, {x, y});
}

void Close(hb_draw_funcs_t* /*functions*/, void* path, hb_draw_state_t* /*state*/,
           void* /*userData*/) {
  PathIn(path).Close();
}

// Quadratic curves, which have no function here, come as cubic ones.
hb_draw_funcs_t* PathFunctions() {
  hb_draw_funcs_t* const functions = hb_draw_funcs_create();
  hb_draw_funcs_set_move_to_func(functions, Move, nullptr, nullptr);
  hb_draw_funcs_set_line_to_func(functions, Line, nullptr, nullptr);
  hb_draw_funcs_set_cubic_to_func(functions, Curve, nullptr, nullptr);
  hb_draw_funcs_set_close_path_func(functions, Close, nullptr, nullptr);
  hb_draw_funcs_make_immutable(functions);
  return functions;
}

}  // namespace

CGPath GlyphOutline(hb_font_t* font, hb_codepoint_t glyph) {
  static hb_draw_funcs_t* const kFunctions = PathFunctions();  // threads may outlive static objects
  CGPath outline;
  hb_font_get_glyph_shape(font, glyph, kFunctions, &outline);
  return outline;
}

}  // namespace kelvane
