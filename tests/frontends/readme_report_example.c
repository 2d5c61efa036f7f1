#include <stdio.h>

#include <kelvane/kelvane.h>

/* Writes the PDF of a metafile as Windows shows it, and what it lacks to standard error. */
kelvane_status write_picture(const void* metafile, size_t length, FILE* stream) {
  kelvane_options* options = kelvane_options_new();
  kelvane_result* result = NULL;
  kelvane_status status = KELVANE_NO_DOCUMENT;
  if (options != NULL && kelvane_options_set(options, "width", "400") == KELVANE_DONE) {
    result = kelvane_convert(metafile, length, options);
  }
  if (result != NULL) {
    size_t size = 0;
    const void* pdf = kelvane_result_data(result, &size);
    if (pdf != NULL) fwrite(pdf, 1, size, stream);
    fprintf(stderr, "%s\n", kelvane_result_report(result));
    status = kelvane_result_status(result);
  }
  kelvane_result_free(result);
  kelvane_options_free(options);
  return status;
}
