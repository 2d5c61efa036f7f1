/*
 * kelvane: Windows Enhanced Metafiles to PDF.
 *
 * Errors: a function that can fail says so in its result, and nothing else leaves it: no exception,
 * no signal, no exit. A conversion that fails leaves its output as it was. When the input does not
 * begin with a metafile header, one line about it is printed to standard output.
 *
 * Lifetime: a data object starts with one reference, which belongs to whoever created it and is
 * given back with CFRelease. Memory that is passed in is borrowed for the call.
 *
 * Threads: any number of conversions may run at once, each with its own data object. A data object
 * is used by one thread at a time; its references may be counted from any.
 */
#ifndef KELVANE_KELVANE_H
#define KELVANE_KELVANE_H

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

/* NOLINTEND(modernize-use-using) */

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
