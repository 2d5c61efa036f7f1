/* A caller written in C: the public header is all it includes of the library. */
#include <stdio.h>
#include <string.h>

#include <kelvane/kelvane.h>

/* The low bytes of a 32-bit number below 65536. */
#define NUMBER(value) (value) % 256, (value) / 256, 0, 0

/* A page of 100 by 100 with a line from (10, 20) to (30, 40). */
static const unsigned char kMetafile[] = {
    NUMBER(1),    NUMBER(88),                                                 // EMR_HEADER
    NUMBER(0),    NUMBER(0),   NUMBER(100), NUMBER(100),                      // bounds
    NUMBER(0),    NUMBER(0),   NUMBER(100), NUMBER(100),                      // frame
    ' ',          'E',         'M',         'F',         0,         0, 1, 0,  // signature, version
    NUMBER(140),  NUMBER(4),   NUMBER(1),                              // bytes, records, handles
    NUMBER(0),    NUMBER(0),   NUMBER(0),                              // description, palette
    NUMBER(1024), NUMBER(768), NUMBER(320), NUMBER(240),               // device
    NUMBER(27),   NUMBER(16),  NUMBER(10),  NUMBER(20),                // EMR_MOVETOEX
    NUMBER(54),   NUMBER(16),  NUMBER(30),  NUMBER(40),                // EMR_LINETO
    NUMBER(14),   NUMBER(20),  NUMBER(0),   NUMBER(16),  NUMBER(20)};  // EMR_EOF

static int failures = 0;

static void Expect(int fact, const char* description) {
  if (!fact) {
    ++failures;
    printf("not so: %s\n", description);
  }
}

static int IsDocument(const unsigned char* bytes, size_t length) {
  return length > 5 && memcmp(bytes, "%PDF-", 5) == 0;
}

static void ConvertInMemory(void) {
  CFMutableDataRef output = CFDataCreateMutable(NULL, 0);
  Expect(KELVANE(kMetafile, sizeof kMetafile, output) == 0, "a metafile in memory is converted");
  Expect(IsDocument(CFDataGetBytePtr(output), (size_t)CFDataGetLength(output)),
         "the data object holds a document");
  CFRelease(CFRetain(output));
  CFRelease(output);
}

static void ConvertFile(void) {
  unsigned char start[16];
  size_t length = 0;
  FILE* file = fopen("c_interface_test.emf", "wb");
  Expect(file != NULL && fwrite(kMetafile, sizeof kMetafile, 1, file) == 1 && fclose(file) == 0,
         "the metafile can be written");
  Expect(ReadFromFile("c_interface_test.emf") == 0, "a metafile in a file is converted");
  file = fopen("c_interface_test.pdf", "rb");
  Expect(file != NULL, "there is a document beside the metafile");
  if (file == NULL) return;
  length = fread(start, 1, sizeof start, file);
  fclose(file);
  Expect(IsDocument(start, length), "the file holds a document");
  remove("c_interface_test.emf");
  remove("c_interface_test.pdf");
}

int main(void) {
  ConvertInMemory();
  ConvertFile();
  return failures == 0 ? 0 : 1;
}
