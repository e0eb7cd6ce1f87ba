/*
 * Exports all notes of one book and says which file they went to; with a second argument,
 * imports that exported file instead.
 *
 *     export_notes BOOK_HASH
 *     export_notes --import FILE
 */
#include <stdio.h>
#include <string.h>

#include "notes_export/notes_export.h"

static int export_book(notes_exporter* exporter, const char* book_hash) {
    char path[4096];
    notes_exporter_get_exported_file_name(exporter, path, sizeof path, book_hash);
    if (memchr(path, '\0', sizeof path) == NULL) {
        fprintf(stderr, "The path of the exported file is too long.\n");
        return 1;
    }
    if (notes_exporter_export_bookmarks_to_html(exporter, book_hash, NULL, 0, NULL, NULL) !=
        0) {
        fprintf(stderr, "No book has the hash %s.\n", book_hash);
        return 1;
    }
    printf("%s\n", path);
    return 0;
}

static int import_file(notes_exporter* exporter, const char* path) {
    int result = notes_exporter_import_from_file(exporter, path);
    if (result < 0) {
        fprintf(stderr, "%s could not be imported (%d).\n", path, result);
        return 1;
    }
    printf("%d\n", result);
    return 0;
}

int main(int argc, char** argv) {
    int importing = argc == 3 && strcmp(argv[1], "--import") == 0;
    if (argc != 2 && !importing) {
        fprintf(stderr, "Usage: %s BOOK_HASH | --import FILE\n", argv[0]);
        return 2;
    }
    notes_exporter* exporter = new_notes_exporter();
    int status =
        importing ? import_file(exporter, argv[2]) : export_book(exporter, argv[1]);
    free_notes_exporter(exporter);
    return status;
}
