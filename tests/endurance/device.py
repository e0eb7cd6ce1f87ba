"""A device in a folder, the client that works on it, and the expected content."""

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


class Finding(Exception):
    """A failed check."""


def check(holds, *what):
    if not holds:
        raise Finding(" ".join(str(part) for part in what))


def title_of(book):
    return f"Book {book[-6:]}"


class Device:
    def __init__(self, client, folder):
        self.client = client
        self.folder = folder
        self.books = {}
        self.database = os.path.join(folder, CONFIG, "books.db")
        self.pages = os.path.join(folder, "pages")
        self.carried = {}  # the book in each page of the folder of pages, by path
        os.makedirs(self.pages)

    def updates(self, book):
        """Returns whether an update must write the book's page, and the pages that it may replace."""
        pages = {path: books for path, books in self.carried.items() if book in books}
        now = self.books[book]
        replaceable = {path for path, books in pages.items() if model.includes(now, books[book])}
        return all(books[book] != now for books in pages.values()), replaceable

    def take_update(self, book, path):
        """Records that an update printed this path (or None) for the book."""
        is_stale, replaceable = self.updates(book)
        check((path is not None) == is_stale, self.folder, book, "is stale:", is_stale, "printed:", path)
        if path is not None:
            check(path in replaceable or (not replaceable and path not in self.carried),
                  path, "was written, and might replace", replaceable)
            self.carried[path] = model.copy({book: self.books[book]})

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
            for what, most in limits:
                resource.setrlimit(what, (most, most))

        command = [*prefix, self.client, "-C", self.folder, *arguments]
        return subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, preexec_fn=apply)

    def run(self, *arguments, **options):
        """Runs the client and returns the lines that it printed."""
        process = self.start(*arguments, **options)
        out, errors = process.communicate()
        check(process.returncode == 0, arguments, process.returncode, errors.decode())
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
        wanted |= {os.path.relpath(path, self.folder) for path in self.carried}
        found = {path for path in found if not path.endswith(".db-journal")}
        check(found == wanted, self.folder, "has", sorted(found ^ wanted))

    def repair(self, was_killed):
        """Opens both databases, which rolls back cut changes, and removes the files that SIGKILL leaves."""
        self.run("books")
        for name in os.listdir(self.pages):
            if was_killed and name.startswith(".notes-export-"):
                shutil.rmtree(os.path.join(self.pages, name))


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
