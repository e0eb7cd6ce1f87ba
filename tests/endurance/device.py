"""A device in a folder, the client that works on it, and the expected content."""

import hashlib
import json
import os
import resource
import shutil
import signal
import sqlite3
import subprocess
import xml.parsers.expat

import model

CONFIG = "mnt/ext1/system/config"
ENDING = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT, signal.SIGPIPE, signal.SIGXCPU)


class Finding(Exception):
    """A failed check."""


def check(holds, *what):
    if not holds:
        raise Finding(" ".join(str(part) for part in what))


def title_of(book):
    """Gives two books the same title."""
    return f"Book {int(book, 16) // 2}"


class Pages:
    """The folder of pages that all devices share, and its expected content."""

    def __init__(self, folder):
        self.folder = folder
        self.digests = {}  # by path
        os.makedirs(folder)

    def read(self):
        """Returns the digest of each file, and None for a folder."""
        digests = dict.fromkeys(os.path.join(self.folder, name) for name in os.listdir(self.folder))
        for path in filter(os.path.isfile, digests):
            with open(path, "rb") as file:
                digests[path] = hashlib.sha1(file.read()).digest()
        return digests

    def verify(self):
        """Checks that every byte of every file is as expected."""
        found = self.read()
        wrong = sorted(path for path in found | self.digests if found.get(path, "") != self.digests.get(path, ""))
        check(not wrong, "changed, came or went:", wrong)

    def leftovers(self):
        return {entry.path for entry in os.scandir(self.folder) if entry.name.startswith(".notes-export-")}


class Device:
    def __init__(self, client, folder, pages=None):
        self.client = client
        self.folder = folder
        self.pages = pages
        self.books = {}
        self.database = os.path.join(folder, CONFIG, "books.db")
        self.noted = {}  # the book, options and hash of the notes of its pages, by path and digest
        os.makedirs(folder)

    def place(self, book, options):
        """Returns the path that an export must print, the notes of the page, and whether it is up to date.
        A page may be replaced only if this device noted its content for the same book and options."""
        notes = model.select(model.read(self.database, [book])[book], options)
        now = hash(repr(notes))  # also of their order
        names = [title_of(book), *(f"{title_of(book)} ({number})" for number in range(1, 1000))]
        paths = [os.path.join(self.pages.folder, name + ".html") for name in names]
        for path in paths:
            *kind, then = self.noted.get((path, self.pages.digests.get(path)), (None,))
            if kind == [book, options]:
                return path, notes, then == now
        return next(path for path in paths if path not in self.pages.digests), notes, False

    def take(self, books, options, lines):
        """Records the pages that an export wrote, and returns them with their books. A line that was not
        printed is None. Takes clients that ran at once as if they ran one after the other."""
        found = self.pages.read()
        written = []
        for book, line in zip(books, lines, strict=True):
            path, notes, is_current = self.place(book, options)
            check(line in (path, None), self.folder, book, options, "printed", line, "instead of", path)
            if is_current or (line is None and found.get(path) == self.pages.digests.get(path)):
                continue
            verify_page(self.client, path, {book: notes}, self.folder + "-scratch")
            self.pages.digests[path] = found[path]
            self.noted[path, found[path]] = (book, () if "--new" in options else options, hash(repr(notes)))
            written.append((path, {book: notes}))
        return written

    def start_export(self, books, options, **limits):
        return self.start("export", *books, *options, "--dir", self.pages.folder, **limits)

    def load(self, books):
        """Makes these books the only content of the device."""
        titles = [{"hash": book, "title": title_of(book), "author": "A & B"} for book in books]
        path = os.path.join(self.folder, "device.json")
        with open(path, "w", encoding="utf-8") as file:
            json.dump({"books": titles}, file)
        self.run("load", path)
        os.remove(path)
        connection = sqlite3.connect(self.database)
        for book, notes in books.items():
            for uuid, tags in notes.items():
                write_note(connection, book, uuid, tags)
        connection.commit()
        connection.close()
        self.books = model.copy(books)

    def edit(self, change):
        """Changes the database and the expected content with `change(connection, books)`."""
        connection = sqlite3.connect(self.database)
        change(connection, self.books)
        connection.commit()
        connection.close()

    def start(self, *arguments, prefix=(), limits=()):
        """Starts the client; `limits` are pairs of a resource and its limit."""

        def apply():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            for number in ENDING:
                signal.signal(number, signal.SIG_DFL)
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            for what, most in limits:
                resource.setrlimit(what, (most, most))

        command = [*prefix, self.client, "-C", self.folder, *arguments]
        return subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, preexec_fn=apply)

    def run(self, *arguments, **options):
        """Runs the client and returns the lines that it printed."""
        return self.finish(self.start(*arguments, **options))

    @staticmethod
    def finish(process):
        out, errors = process.communicate()
        check(process.returncode == 0, process.args, process.returncode, errors.decode())
        return out.decode().splitlines()

    def verify(self, only=None):
        wanted = self.books if only is None else {book: self.books[book] for book in only if book in self.books}
        found = model.difference(wanted, model.read(self.database, only))
        check(found is None, self.folder, found)

    def verify_files(self):
        """Checks that the device has only expected files. A killed client may leave a journal, which
        SQLite removes with the next change."""
        found = set()
        for folder, folders, files in os.walk(self.folder):
            found |= {os.path.relpath(os.path.join(folder, name), self.folder) for name in files}
            found |= {name for name in folders if name.startswith(".")}
        wanted = {f"{CONFIG}/books.db", f"{CONFIG}/library.db", "mnt/ext1/system/reader/notes.css"}
        found = {path for path in found if not path.endswith(".db-journal")}
        check(found == wanted, self.folder, "has", sorted(found ^ wanted))


def write_note(connection, book, uuid, tags):
    (book_id,) = connection.execute("SELECT id FROM books WHERE fast_hash = ?", (book,)).fetchone()
    connection.execute("INSERT OR IGNORE INTO notes (book_id, uuid) VALUES (?, ?)", (book_id, uuid))
    (note_id,) = connection.execute(
        "SELECT id FROM notes WHERE book_id = ? AND uuid = ?", (book_id, uuid)).fetchone()
    connection.executemany(
        "INSERT OR REPLACE INTO tags (note_id, tag, text, json, timestamp) VALUES (?, ?, ?, ?, ?)",
        [(note_id, number, tag.text, tag.json, tag.timestamp) for number, tag in tags.items()])


def delete_note(connection, book, uuid):
    chosen = "SELECT notes.id FROM notes JOIN books ON books.id = book_id WHERE fast_hash = ? AND uuid = ?"
    connection.execute(f"DELETE FROM tags WHERE note_id IN ({chosen})", (book, uuid))
    connection.execute(f"DELETE FROM notes WHERE id IN ({chosen})", (book, uuid))


def verify_page(client, path, books, scratch):
    """Checks that the page is well-formed, shows each note, and carries only these records."""
    shown = []

    def look(_, attributes):
        if attributes.get("class", "").startswith("bookmark ") and "id" in attributes:
            shown.append(attributes["id"])

    parser = xml.parsers.expat.ParserCreate()
    parser.StartElementHandler = look
    with open(path, "rb") as file:
        parser.ParseFile(file)
    (notes,) = books.values()
    check(sorted(shown) == sorted(notes), path, "shows", sorted(shown), "instead of", sorted(notes))
    shutil.rmtree(scratch, ignore_errors=True)
    device = Device(client, scratch)
    device.run("import", path)
    device.books = books
    device.verify()
