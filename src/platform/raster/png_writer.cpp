#include "platform/raster/png_writer.h"

#include <cmath>
#include <csetjmp>
#include <exception>
#include <new>
#include <stdexcept>
#include <vector>

#include "base/png_library.h"

namespace kelvane {
namespace {

/// What the library's calls back have to know. Nothing may be thrown through it.
struct Writing {
  CGDataConsumer& consumer;
  std::exception_ptr failure;
};

void WriteBytes(png_structp png, png_bytep bytes, png_size_t count) {
  auto& writing = *static_cast<Writing*>(png_get_io_ptr(png));
  try {
    writing.consumer.Write({bytes, count});
  } catch (...) {
    writing.failure = std::current_exception();
  }
  if (writing.failure) png_error(png, "the output cannot be written");
}

void DoNothing(png_structp /*png*/) {}

[[noreturn]] void Fail(png_structp png, png_const_charp /*message*/) {
  longjmp(png_jmpbuf(png), 1);
}

void Ignore(png_structp /*png*/, png_const_charp /*message*/) {}

/// The library's objects, owned.
class Objects {
 public:
  Objects() : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, Ignore)) {
    if (png != nullptr) info = png_create_info_struct(png);
  }
  ~Objects() { png_destroy_write_struct(&png, &info); }
  Objects(const Objects&) = delete;
  Objects& operator=(const Objects&) = delete;

  png_structp png;
  png_infop info = nullptr;
};

void WriteHeader(Objects& objects, const PngSheet& sheet) {
  constexpr int kBits = 8;
  constexpr double kInchesOfAMetre = 1 / 0.0254;
  constexpr int kEffort = 4;  // more takes twice as long, for a tenth
  const auto perMetre = static_cast<png_uint_32>(std::lround(sheet.dotsPerInch * kInchesOfAMetre));
  png_set_IHDR(objects.png, objects.info, static_cast<png_uint_32>(sheet.width),
               static_cast<png_uint_32>(sheet.height), kBits,
               sheet.hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_pHYs(objects.png, objects.info, perMetre, perMetre, PNG_RESOLUTION_METER);
  png_set_compression_level(objects.png, kEffort);
  png_set_filter(objects.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
  png_write_info(objects.png, objects.info);
}

using FillRow = std::function<void(std::size_t row, std::span<unsigned char> bytes)>;

/// Jumps out of the library land here, so nothing is made here that would have to be destroyed.
/// @return false when it failed.
bool WriteRows(Objects& objects, const PngSheet& sheet, std::span<unsigned char> row,
               const FillRow& fill) {
  if (setjmp(png_jmpbuf(objects.png)) != 0) return false;  // NOLINT(cert-err52-cpp)
  WriteHeader(objects, sheet);
  for (std::size_t y = 0; y < sheet.height; ++y) {
    fill(y, row);
    png_write_row(objects.png, row.data());
  }
  png_write_end(objects.png, nullptr);
  return true;
}

}  // namespace

void WritePng(const PngSheet& sheet, CGDataConsumer& consumer,
              const std::function<void(std::size_t row, std::span<unsigned char> bytes)>& fill) {
  std::vector<unsigned char> row(sheet.width * (sheet.hasAlpha ? 4 : 3));
  Writing writing = {consumer, nullptr};
  Objects objects;
  if (objects.info == nullptr) throw std::bad_alloc();
  png_set_write_fn(objects.png, &writing, WriteBytes, DoNothing);
  if (WriteRows(objects, sheet, row, fill)) return;
  if (writing.failure) std::rethrow_exception(writing.failure);
  throw std::runtime_error("the picture cannot be written as PNG");
}

}  // namespace kelvane
