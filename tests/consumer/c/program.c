/* Reads a metafile, converts it in memory and writes the document to standard output. */
#include <stdio.h>

#include <kelvane/kelvane.h>

int main(int argc, char** argv) {
  static unsigned char metafile[1 << 20];
  FILE* file = argc == 2 ? fopen(argv[1], "rb") : NULL;
  CFMutableDataRef pdf = CFDataCreateMutable(NULL, 0);
  size_t length;
  int status;
  if (file == NULL || pdf == NULL) return 1;
  length = fread(metafile, 1, sizeof metafile, file);
  fclose(file);
  status = KELVANE(metafile, length, pdf);
  if (status == 0) fwrite(CFDataGetBytePtr(pdf), 1, (size_t)CFDataGetLength(pdf), stdout);
  CFRelease(pdf);
  return status == 0 ? 0 : 1;
}
