#include "metafile/jpeg_decoder.h"

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <cstdio>  // jpeglib.h wants it before itself

#include <jpeglib.h>

namespace kelvane {
inline namespace metafile {
namespace {

/// Each scan of a progressive file goes over the whole picture, and may be a few bytes.
constexpr int kMostScans = 100;

/// What the library calls back.
struct JpegCallbacks {
  jpeg_error_mgr errors;
  jpeg_progress_mgr progress;
  std::jmp_buf onError;
};

void FailJpeg(j_common_ptr common) {
  std::longjmp(static_cast<JpegCallbacks*>(common->client_data)->onError, 1);
}

void IgnoreJpegWarning(j_common_ptr /*common*/) {}

void CountScans(j_common_ptr common) {
  const auto* decompress = reinterpret_cast<j_decompress_ptr>(common);
  if (decompress->input_scan_number > kMostScans) FailJpeg(common);
}

void SetUpJpeg(jpeg_decompress_struct& decompress, JpegCallbacks& callbacks) {
  decompress.err = jpeg_std_error(&callbacks.errors);
  callbacks.errors.error_exit = FailJpeg;
  callbacks.errors.output_message = IgnoreJpegWarning;
  decompress.client_data = &callbacks;
}

/// @return whether the picture is as large as whoever asks for the part thinks.
bool Holds(const jpeg_decompress_struct& decompress, const PixelRectangle& part) {
  return part.left <= decompress.output_width &&
         part.width <= decompress.output_width - part.left &&
         part.top <= decompress.output_height && part.height <= decompress.output_height - part.top;
}

void StartJpeg(jpeg_decompress_struct& decompress, JpegCallbacks& callbacks,
               std::span<const unsigned char> file) {
  jpeg_create_decompress(&decompress);
  callbacks.progress.progress_monitor = CountScans;
  decompress.progress = &callbacks.progress;
  jpeg_mem_src(&decompress, file.data(), static_cast<unsigned long>(file.size()));
  jpeg_read_header(&decompress, TRUE);
  decompress.out_color_space = JCS_RGB;
  jpeg_start_decompress(&decompress);
}

/// @param row  of the whole width.
bool ReadJpegRows(jpeg_decompress_struct& decompress, const PixelRectangle& part,
                  unsigned char* row, unsigned char* rgb) {
  if (!Holds(decompress, part)) return false;
  while (decompress.output_scanline < part.top + part.height) {
    const std::size_t y = decompress.output_scanline;
    if (jpeg_read_scanlines(&decompress, &row, 1) != 1) return false;
    if (y < part.top) continue;
    std::copy_n(row + 3 * part.left, 3 * part.width, rgb + 3 * part.width * (y - part.top));
  }
  return true;
}

/// The library leaves an error by a jump to here, so nothing that it jumps over has a destructor.
bool ReadJpegUnlessItFails(jpeg_decompress_struct& decompress, JpegCallbacks& callbacks,
                           std::span<const unsigned char> file, const PixelRectangle& part,
                           unsigned char* row, unsigned char* rgb) {
  if (setjmp(callbacks.onError) != 0) return false;
  StartJpeg(decompress, callbacks, file);
  return ReadJpegRows(decompress, part, row, rgb);
}

}  // namespace

std::optional<std::vector<unsigned char>> DecodeJpeg(std::span<const unsigned char> file,
                                                     const PixelRectangle& part) {
  constexpr std::size_t kWidestRow = 0xFFFF;
  std::vector<unsigned char> rgb(3 * part.width * part.height);
  std::vector<unsigned char> row(3 * kWidestRow);
  jpeg_decompress_struct decompress{};
  JpegCallbacks callbacks{};
  SetUpJpeg(decompress, callbacks);
  const bool isDecoded =
      ReadJpegUnlessItFails(decompress, callbacks, file, part, row.data(), rgb.data());
  jpeg_destroy_decompress(&decompress);
  if (!isDecoded) return std::nullopt;
  return rgb;
}

}  // namespace metafile
}  // namespace kelvane
