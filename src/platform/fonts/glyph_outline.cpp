#include "platform/fonts/glyph_outline.h"

#include <exception>
#include <utility>

namespace kelvane {
namespace {

/// What the functions draw on.
struct Drawing {
  CGPath path;
  std::exception_ptr failure;
};

/// Takes a step of an outline, unless one before it failed. Nothing may be thrown through the
/// library.
template <class Step>
void Draw(void* data, const Step& step) {
  auto& drawing = *static_cast<Drawing*>(data);
  if (drawing.failure) return;
  try {
    step(drawing.path);
  } catch (...) {
    drawing.failure = std::current_exception();
  }
}

void Move(hb_draw_funcs_t* /*functions*/, void* drawing, hb_draw_state_t* /*state*/, float x,
          float y, void* /*userData*/) {
  Draw(drawing, [=](CGPath& path) { path.MoveTo({x, y}); });
}

void Line(hb_draw_funcs_t* /*functions*/, void* drawing, hb_draw_state_t* /*state*/, float x,
          float y, void* /*userData*/) {
  Draw(drawing, [=](CGPath& path) { path.LineTo({x, y}); });
}

void Curve(hb_draw_funcs_t* /*functions*/, void* drawing, hb_draw_state_t* /*state*/, float x1,
           float y1, float x2, float y2, float x, float y, void* /*userData*/) {
  Draw(drawing, [=](CGPath& path) { path.CurveTo({x1, y1}, {x2, y2}, {x, y}); });
}

void Close(hb_draw_funcs_t* /*functions*/, void* drawing, hb_draw_state_t* /*state*/,
           void* /*userData*/) {
  Draw(drawing, [](CGPath& path) { path.Close(); });
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
  Drawing drawing;
  hb_font_get_glyph_shape(font, glyph, kFunctions, &drawing);
  if (drawing.failure) std::rethrow_exception(drawing.failure);
  return std::move(drawing.path);
}

}  // namespace kelvane
