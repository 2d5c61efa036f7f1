#include <stdio.h>

#include <kelvane/kelvane.h>

/* Writes the PDF of a metafile in memory to a stream. Returns 0, or -1 when that fails. */
int write_pdf(const unsigned char* metafile, unsigned long length, FILE* stream) {
  CFMutableDataRef pdf = CFDataCreateMutable(NULL, 0);
  int status = pdf != NULL ? KELVANE(metafile, length, pdf) : -1;
  if (status == 0) fwrite(CFDataGetBytePtr(pdf), 1, (size_t)CFDataGetLength(pdf), stream);
  CFRelease(pdf);
  return status;
}
