/* A caller written in C who converts with options and reads the report. */
#include <pthread.h>
#include <stdio.h>
#include <string.h>

#include <kelvane/kelvane.h>

/* The low bytes of a 32-bit number below 65536. */
#define NUMBER(value) (value) % 256, (value) / 256, 0, 0

/* A frame of an inch by two around bounds of 80 by 160, a line, and a record that nobody knows. */
static const unsigned char kMetafile[] = {NUMBER(1),
                                          NUMBER(88), /* EMR_HEADER */
                                          NUMBER(0),
                                          NUMBER(0),
                                          NUMBER(80),
                                          NUMBER(160), /* bounds */
                                          NUMBER(0),
                                          NUMBER(0),
                                          NUMBER(2540),
                                          NUMBER(5080), /* frame */
                                          ' ',
                                          'E',
                                          'M',
                                          'F',
                                          0,
                                          0,
                                          1,
                                          0, /* signature, version */
                                          NUMBER(152),
                                          NUMBER(5),
                                          NUMBER(1), /* bytes, records, handles */
                                          NUMBER(0),
                                          NUMBER(0),
                                          NUMBER(0), /* description, palette */
                                          NUMBER(1024),
                                          NUMBER(768),
                                          NUMBER(320),
                                          NUMBER(240), /* device */
                                          NUMBER(27),
                                          NUMBER(16),
                                          NUMBER(10),
                                          NUMBER(20), /* EMR_MOVETOEX */
                                          NUMBER(54),
                                          NUMBER(16),
                                          NUMBER(30),
                                          NUMBER(40), /* EMR_LINETO */
                                          NUMBER(200),
                                          NUMBER(12),
                                          NUMBER(0), /* the unknown one */
                                          NUMBER(14),
                                          NUMBER(20),
                                          NUMBER(0),
                                          NUMBER(16),
                                          NUMBER(20)}; /* EMR_EOF */

static int failures = 0;

static void Expect(int fact, const char* description) {
  if (!fact) {
    ++failures;
    printf("not so: %s\n", description);
  }
}

static int Holds(const char* text, const char* part) {
  return strstr(text, part) != NULL;
}

static void ListOptions(void) {
  size_t count = 0;
  int hasPage = 0;
  for (; kelvane_option_name(count) != NULL; ++count) {
    Expect(kelvane_option_values(count) != NULL && kelvane_option_default(count) != NULL &&
               kelvane_option_help(count) != NULL,
           "an option that is listed has all its texts");
    if (strcmp(kelvane_option_name(count), "page") == 0) {
      hasPage = strcmp(kelvane_option_values(count), "frame|bounds") == 0 &&
                strcmp(kelvane_option_default(count), "frame") == 0;
    }
  }
  Expect(hasPage, "the page is listed with its values, the frame being the default");
  Expect(kelvane_option_values(count) == NULL && kelvane_option_default(count) == NULL &&
             kelvane_option_help(count) == NULL,
         "there is nothing past the last option");
}

static void RefuseOptions(void) {
  kelvane_options* options = kelvane_options_new();
  Expect(strcmp(kelvane_options_message(options), "") == 0, "new options have no message");
  Expect(kelvane_options_set(options, "page", "paper") == KELVANE_REFUSED,
         "a value that is not allowed is refused");
  Expect(strcmp(kelvane_options_message(options),
                "page cannot be 'paper': it is frame or bounds") == 0,
         "the message names option, value and what is allowed");
  Expect(kelvane_options_set(options, "colour", "red") == KELVANE_REFUSED,
         "an option that is not there is refused");
  Expect(kelvane_options_set(options, "page", "bounds") == KELVANE_DONE &&
             strcmp(kelvane_options_message(options), "") == 0,
         "setting an option takes the message back");
  kelvane_options_free(options);
  kelvane_options_free(NULL);
}

static void Convert(void) {
  size_t length = 0;
  kelvane_result* result = kelvane_convert(kMetafile, sizeof kMetafile, NULL);
  const char* data = (const char*)kelvane_result_data(result, &length);
  Expect(kelvane_result_status(result) == KELVANE_DONE, "a metafile is converted");
  Expect(length > 5 && memcmp(data, "%PDF-", 5) == 0, "the result holds a document");
  Expect(strcmp(kelvane_result_message(result), "") == 0, "there is nothing to explain");
  Expect(Holds(kelvane_result_report(result), "\"page\":{\"width\":72,\"height\":144}"),
         "the report has the page, which is the frame");
  Expect(Holds(kelvane_result_report(result), "\"records\":5"), "the report counts records");
  Expect(Holds(kelvane_result_report(result), "\"left_out\":[{\"record\":\"unknown\",\"type\":200"),
         "the report has what is left out");
  kelvane_result_free(result);
  kelvane_result_free(NULL);
}

static void ConvertWithOptions(void) {
  kelvane_options* options = kelvane_options_new();
  kelvane_result* result = NULL;
  size_t length = 0;
  kelvane_options_set(options, "page", "bounds");
  kelvane_options_set(options, "strict", "yes");
  result = kelvane_convert(kMetafile, sizeof kMetafile, options);
  kelvane_options_free(options);
  Expect(kelvane_result_status(result) == KELVANE_INCOMPLETE, "strict makes an omission a status");
  Expect(strcmp(kelvane_result_message(result), "1 record left out of the picture") == 0,
         "the message says what is wrong");
  Expect(kelvane_result_data(result, &length) != NULL && length > 0, "the document is there still");
  Expect(Holds(kelvane_result_report(result), "\"page\":{\"width\":80,\"height\":160}"),
         "the page is the bounds");
  kelvane_result_free(result);
}

static void RefuseInput(void) {
  size_t length = 1;
  kelvane_result* result = kelvane_convert(NULL, 0, NULL);
  Expect(kelvane_result_status(result) == KELVANE_NO_PICTURE, "no bytes are no picture");
  Expect(strcmp(kelvane_result_message(result), "it is empty") == 0, "the message says why");
  Expect(kelvane_result_data(result, &length) == NULL && length == 0, "there is no document");
  Expect(Holds(kelvane_result_report(result), "\"status\":2"), "the report has the status");
  kelvane_result_free(result);
}

enum { kConversions = 50 };

static void* ConvertOften(void* shared) {
  const kelvane_options* options = (const kelvane_options*)shared;
  size_t i = 0;
  size_t documents = 0;
  for (; i < kConversions; ++i) {
    kelvane_result* result = kelvane_convert(kMetafile, sizeof kMetafile, options);
    documents += kelvane_result_status(result) == KELVANE_DONE;
    kelvane_result_free(result);
  }
  return documents == kConversions ? shared : NULL;
}

static void ConvertFromTwoThreads(void) {
  kelvane_options* options = kelvane_options_new();
  pthread_t other;
  void* otherEnded = NULL;
  Expect(pthread_create(&other, NULL, ConvertOften, options) == 0, "a thread can be started");
  Expect(ConvertOften(options) != NULL, "one thread converts");
  pthread_join(other, &otherEnded);
  Expect(otherEnded != NULL, "another converts meanwhile with the same options");
  kelvane_options_free(options);
}

int main(void) {
  ListOptions();
  RefuseOptions();
  Convert();
  ConvertWithOptions();
  RefuseInput();
  ConvertFromTwoThreads();
  return failures == 0 ? 0 : 1;
}
