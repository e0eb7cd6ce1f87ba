/**
 * @file
 * notes_export: writes the notes of one book into one self-contained XHTML file, and reads
 * such a file back into the reader database. This is the C interface.
 *
 * Conventions
 *
 * 1. A handle is opaque. new_notes_exporter creates it, free_notes_exporter ends it, and in
 *    between it serves any number of calls in any order. Each handle has its own export
 *    directory; handles share nothing but the device's databases.
 * 2. Text is a sequence of bytes that ends with a zero byte, UTF-8 by convention. It is
 *    copied before the function returns: the caller keeps what it passed, and frees it.
 * 3. A pointer may be null only where its function says so.
 * 4. A book is named by its book hash: the fast hash of the book's file as hexadecimal
 *    text, which is the book's key in the device's databases.
 * 5. Every function does its whole work on the calling thread and starts no thread. One
 *    handle must not serve two calls at the same time; different handles may serve
 *    different threads. The library takes no lock of its own, but the device's databases
 *    make a call wait while another thread or process writes. How long is the platform's
 *    choice (the host platform, for desktops: at most 5 seconds for each query). After
 *    that the call fails (7), or an export lacks its records (6).
 * 6. Failures to write the exported file are not reported: a full disk, a directory that
 *    cannot be written or a busy reader database gives the same result as success. To
 *    detect them, read the file that notes_exporter_get_exported_file_name named before
 *    the export. A complete file ends in "</html>". Without a "script" element it lacks the
 *    records that an import needs.
 * 7. A failure inside the device's libraries, a failed allocation or a null text is a C++
 *    exception. notes_exporter_import_from_file turns one derived from std::exception into
 *    -1. Every other function releases what it holds and passes the exception on to its
 *    caller; a program without a C++ handler is terminated.
 * 8. Choosing a file name and opening the file are two steps. Two exports of one title into
 *    one directory at the same time can write into one file: let each export write into a
 *    directory of its own and then move the file to a name that is free.
 * 9. The fixed paths, under /mnt/ext1, are those of a device build. A host build has them
 *    below the working directory, without the leading "/".
 *
 * Example: export all notes of a book in page order, then import the file.
 *
 *     char path[4096] = "";
 *     notes_exporter* exporter = new_notes_exporter();
 *     notes_exporter_get_exported_file_name(exporter, path, sizeof path - 1, hash);
 *     notes_exporter_export_bookmarks_to_html(exporter, hash, NULL, 0, NULL, NULL);
 *     notes_exporter_import_from_file(exporter, path);
 *     free_notes_exporter(exporter);
 */
#ifndef NOTES_EXPORT_NOTES_EXPORT_H
#define NOTES_EXPORT_NOTES_EXPORT_H

#include <stdbool.h>
#include <stddef.h>

#if defined(__GNUC__)
/** Marks a declaration that the shared object exports. */
#define NOTES_EXPORT_API __attribute__((visibility("default")))
#else
#define NOTES_EXPORT_API
#endif

#ifdef __cplusplus
namespace veloran {
class NotesExporter;
}
/** An exporter; opaque to C. */
typedef veloran::NotesExporter notes_exporter;
extern "C" {
#else
typedef struct notes_exporter notes_exporter;
#endif

/**
 * Returns whether the note with the database identifier `first` comes before the note with
 * the identifier `second` in the document. `user_data` is the pointer that was passed with
 * the function. The results should form a strict weak ordering. Otherwise the order is
 * unspecified, but each note is written once. Called only by
 * notes_exporter_export_bookmarks_to_html, on its thread.
 */
typedef bool (*notes_exporter_before)(void* user_data, long long first, long long second);

/**
 * Creates an exporter and opens the reader database. The export directory starts as
 * "/mnt/ext1/Notes".
 *
 * @return the handle, owned by the caller until free_notes_exporter; never null. A database
 * that cannot be opened is not reported here; the calls that need it fail.
 */
NOTES_EXPORT_API notes_exporter* new_notes_exporter(void);

/**
 * Sets the directory that receives exported files, for this handle's later exports and
 * file-name queries. The path is used unchanged, and is neither checked nor created. A "/"
 * is put between it and the file's name, so it should not end in one.
 *
 * @param exporter the handle; not null
 * @param directory the directory's path; not null; empty means the root directory
 */
NOTES_EXPORT_API void notes_exporter_set_export_dir(notes_exporter* exporter,
                                                    const char* directory);

/**
 * Writes notes of one book into a new XHTML file under the export directory, creating
 * missing directories, and marks the file in the device's library database. The file is
 * named after the book's title; a name that is taken when the export begins gets a counter.
 * A file created there later is overwritten (convention 8).
 *
 * @param exporter the handle; not null
 * @param book_hash the book; not null
 * @param note_ids database identifiers of the notes to export, in any order; repeated ones
 * count once, unknown ones are ignored; may be null when `count` is 0
 * @param count number of elements of `note_ids`; 0 exports every note of the book
 * @param before the notes' order in the document; null orders them by page, notes of one
 * page in the order of the database; a note without a page counts as on page 0
 * @param user_data passed to `before` unchanged, never dereferenced; may be null
 *
 * @return -1 if the reader database does not have the book; nothing has been changed then.
 * 0 otherwise, even if the file could not be written.
 */
NOTES_EXPORT_API int notes_exporter_export_bookmarks_to_html(
    notes_exporter* exporter, const char* book_hash, const unsigned long long* note_ids,
    size_t count, notes_exporter_before before, void* user_data);

/**
 * Writes the path that the next export of the book would use into `buffer`; after that
 * export, a new one. Creates no file.
 *
 * @param exporter the handle; not null
 * @param buffer receives the path and its terminating zero byte; not null
 * @param size capacity of `buffer` in bytes. A path of `size` bytes or more fills the
 * buffer with its first `size` bytes and no zero byte; the cut is not reported. 0 leaves
 * the buffer unchanged.
 * @param book_hash the book; not null. A book in neither database is named after its
 * hash.
 */
NOTES_EXPORT_API void notes_exporter_get_exported_file_name(notes_exporter* exporter,
                                                            char* buffer, size_t size,
                                                            const char* book_hash);

/**
 * Merges the records that an exported file carries into the reader database, and marks the
 * file in the device's library database.
 *
 * @param exporter the handle; not null
 * @param path the exported file; null gives -1
 *
 * @return zero or more on success: the result of the device's import engine. A negative
 * number on failure: the engine's own, or -1 for an exception.
 */
NOTES_EXPORT_API int notes_exporter_import_from_file(notes_exporter* exporter,
                                                     const char* path);

/**
 * Ends a handle: closes its databases and releases its memory.
 *
 * @param exporter the handle, not to be used again; null does nothing
 */
NOTES_EXPORT_API void free_notes_exporter(notes_exporter* exporter);

#ifdef __cplusplus
}
#endif

#endif
