/*
 * kelvane: Windows metafiles (EMF, EMF+, WMF) to PDF, SVG and PNG.
 *
 * There are two conversions. kelvane_convert makes a page that looks as Windows shows the metafile,
 * and a report on what is missing from it. KELVANE and ReadFromFile make the page of the classic
 * conversion, the same for good.
 *
 * Errors: a function that can fail says so in its result, and nothing else leaves it: no exception,
 * no signal, no exit. A conversion that fails leaves its output as it was. When the input of a
 * classic one does not begin with a metafile header, one line about it is printed to standard
 * output; the others print nothing.
 *
 * Lifetime: memory that is passed in is borrowed for the call. Options and results belong to the
 * caller, who frees each once. A data object starts with one reference, which belongs to whoever
 * created it and is given back with CFRelease.
 *
 * Threads: any number of conversions may run at once. They may share options that nobody sets
 * meanwhile. A result or a data object is used by one thread at a time; a data object's references
 * may be counted from any.
 */
#ifndef KELVANE_KELVANE_H
#define KELVANE_KELVANE_H

#include <stddef.h> /* NOLINT(modernize-deprecated-headers): C has no other. */

#define KELVANE_EXPORT __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* NOLINTBEGIN(modernize-use-using): C has only typedef. */

/* A reference to any of the objects below. */
typedef const void* CFTypeRef;

/* A number of bytes. */
typedef long CFIndex;

/* Only the default allocator exists: NULL. */
typedef const struct KelvaneAllocator* CFAllocatorRef;

/* A growable block of bytes. */
typedef const struct KelvaneData* CFDataRef;
typedef struct KelvaneData* CFMutableDataRef;

/* How something ended. The tool kelvane exits with the same numbers. */
typedef enum kelvane_status {
  KELVANE_DONE = 0,    /* there is a document, or the option is set */
  KELVANE_REFUSED = 1, /* there is no such option, or it cannot have such a value */
  KELVANE_NO_PICTURE =
      2, /* the input is no metafile, is damaged at its beginning, or is too large */
  KELVANE_INCOMPLETE = 3, /* the option "strict" is set, and the document lacks something */
  KELVANE_NO_DOCUMENT = 4 /* the document cannot be made: memory has run out, for example */
} kelvane_status;

/* What is asked of conversions. */
typedef struct kelvane_options kelvane_options;

/* What came of a conversion. */
typedef struct kelvane_result kelvane_result;

/* NOLINTEND(modernize-use-using) */

/*
 * The options that there are, by an index from 0: the name, the values it can have ("frame|bounds",
 * "1..14400" for a number, "DIR" or "FILE" for a path), the one it has unless it is set (empty when
 * there is none, or the picture decides), and a line of help. The texts live as long as the
 * process. Each returns NULL past the last one.
 */
KELVANE_EXPORT const char* kelvane_option_name(size_t index);
KELVANE_EXPORT const char* kelvane_option_values(size_t index);
KELVANE_EXPORT const char* kelvane_option_default(size_t index);
KELVANE_EXPORT const char* kelvane_option_help(size_t index);

/*
 * Creates options, none of them set yet.
 * Returns them, the caller's, for kelvane_options_free; NULL when memory runs out.
 */
KELVANE_EXPORT kelvane_options* kelvane_options_new(void);

/* Frees options. Results do not need them any more. NULL is allowed. */
KELVANE_EXPORT void kelvane_options_free(kelvane_options* options);

/*
 * Sets an option. One whose values are "DIR" can be set several times, and each adds a directory;
 * any other has its last value. A file is read at once, and not looked at again.
 * options: not NULL. name, value: zero-terminated, not NULL; copied.
 * Returns KELVANE_DONE, KELVANE_REFUSED, and KELVANE_NO_DOCUMENT when memory runs out. Unless it is
 * KELVANE_DONE the options are as they were.
 */
KELVANE_EXPORT kelvane_status kelvane_options_set(kelvane_options* options, const char* name,
                                                  const char* value);

/*
 * Returns why the last kelvane_options_set did not set its option, in words that name the option,
 * the value and what is allowed; empty when it did. Borrowed until the next one. options: not NULL.
 */
KELVANE_EXPORT const char* kelvane_options_message(const kelvane_options* options);

/*
 * Converts a metafile in memory.
 * bytes: the metafile; may be NULL when length is 0. length: their number; 2 GiB or more end
 * in KELVANE_NO_PICTURE. options: only read; NULL for none set. Returns a result, the caller's, for
 * kelvane_result_free whatever its status; NULL only when memory runs out.
 */
KELVANE_EXPORT kelvane_result* kelvane_convert(const void* bytes, size_t length,
                                               const kelvane_options* options);

/* Frees a result and all that was borrowed from it. NULL is allowed. */
KELVANE_EXPORT void kelvane_result_free(kelvane_result* result);

/* Returns how the conversion ended. result: not NULL. */
KELVANE_EXPORT kelvane_status kelvane_result_status(const kelvane_result* result);

/*
 * Returns the document, borrowed from the result, and its length. NULL and 0 when there is none,
 * and then kelvane_result_message says why.
 * result, length: not NULL.
 */
KELVANE_EXPORT const void* kelvane_result_data(const kelvane_result* result, size_t* length);

/*
 * Returns the report, borrowed from the result: a JSON object on one line, zero-terminated, UTF-8.
 * "status", the "bytes" of the input and "milliseconds" are always there, "message" where
 * kelvane_result_message has one. With a document there are its "format", its "page" in points,
 * "pages" if it has more than one, and "records", their number; "left_out", "only_nearly" and
 * "damaged" list what the page lacks, "remarks" what else there is to say, and "fonts" the fonts
 * "asked" for and "used".
 * result: not NULL.
 */
KELVANE_EXPORT const char* kelvane_result_report(const kelvane_result* result);

/*
 * Returns why the status is not KELVANE_DONE, in words, borrowed from the result; empty when it is.
 * result: not NULL.
 */
KELVANE_EXPORT const char* kelvane_result_message(const kelvane_result* result);

/*
 * Creates an empty data object with one reference, the caller's.
 * allocator: NULL. capacity: bytes to make room for at once, 0 for none; not a limit.
 * Returns NULL when memory runs out.
 */
KELVANE_EXPORT CFMutableDataRef CFDataCreateMutable(CFAllocatorRef allocator, CFIndex capacity);

/* Returns the number of bytes held. data: not NULL. */
KELVANE_EXPORT CFIndex CFDataGetLength(CFDataRef data);

/*
 * Returns the bytes, borrowed until the object changes or goes; may be NULL when there are none.
 * data: not NULL.
 */
KELVANE_EXPORT const unsigned char* CFDataGetBytePtr(CFDataRef data);

/* Takes one more reference and returns the object. NULL is allowed. */
KELVANE_EXPORT CFTypeRef CFRetain(CFTypeRef object);

/* Gives one reference back; the last one frees the object. NULL is allowed. */
KELVANE_EXPORT void CFRelease(CFTypeRef object);

/*
 * Converts a metafile in memory.
 * buffer: the metafile's bytes; may be NULL when length is 0.
 * length: their number; 2 GiB or more fails.
 * output: the document is appended to it, one PDF of one page, or nothing when the metafile's
 * bounds have no area. NULL makes no document.
 * Returns 0, or -1 when the conversion failed and output is as it was.
 */
KELVANE_EXPORT int KELVANE(const unsigned char* buffer, unsigned long length,
                           CFMutableDataRef output);

/*
 * Converts a metafile in a file. The document is written beside it, under the same path with the
 * last three characters replaced by "pdf", whole or not at all; an older file of that name is
 * replaced.
 * path: zero-terminated, at least three characters; the file system sees exactly its bytes.
 * Returns 0, or -1 when the input cannot be read or converted, has bounds without area, or the
 * output cannot be written.
 */
KELVANE_EXPORT int ReadFromFile(const char* path);

/*
 * Gives the PostScript name of a common face by the name that Windows has for it, or else that name
 * narrowed to one byte a unit, as the process's locale has it. Conversions do not use it.
 * faceName: UTF-16; length: its units. name: takes as many of the bytes as fit, and a terminating
 * zero; size: its room in bytes, 0 to write nothing.
 * Returns the number of bytes of the whole name, without the zero; 0 when memory runs out.
 */
KELVANE_EXPORT unsigned long ConvertFontToPostScript(const unsigned short* faceName,
                                                     unsigned long length, char* name,
                                                     unsigned long size);

#ifdef __cplusplus
}
#endif

#endif
