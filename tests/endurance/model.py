"""The expected content of a device: books of notes, each note a dict of tags by number."""

import json
import sqlite3
from collections import namedtuple

Tag = namedtuple("Tag", "timestamp text json")

UUID, ANCHOR, COLOR, TEXT, COMMENT, IMAGE = 1, 101, 102, 103, 105, 106
TEXTS = ["", "plain", "a < b & \"c\" > 'd' ]]> --> </p>", "two\nlines\r\n\u2028three\u2029four",
         "\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627", "\U0001f4d6 \ufffd", "x" * 3000, "\tends\n"]


class Clock:
    """Gives each edit another time, so that one of two edits is newer on every device."""

    def __init__(self):
        self.time = 1700000000

    def tick(self):
        self.time += 1
        return self.time


def new_note(random, clock, uuid):
    time = clock.tick()
    position = json.dumps({"anchor": f"book?page={random.randrange(900)}.5"})
    note = {UUID: Tag(time, uuid.encode(), None), ANCHOR: Tag(time, b"", position)}
    for number in (COLOR, TEXT, COMMENT):
        if random.random() < 0.7:
            edit(random, clock, note, number)
    if random.random() < 0.01:
        note[IMAGE] = Tag(time, random.randbytes(20000), None)
    return note


def edit(random, clock, note, number):
    text = random.choice(["red", "yellow"] if number == COLOR else TEXTS)
    note[number] = Tag(clock.tick(), text.encode(), None)


def merge(books, other):
    """Takes newer tags from `other`, as an import does."""
    for book_hash, notes in other.items():
        mine = books.setdefault(book_hash, {})
        for uuid, tags in notes.items():
            note = mine.setdefault(uuid, {})
            for number, tag in tags.items():
                if number not in note or note[number].timestamp < tag.timestamp:
                    note[number] = tag


def select(notes, options):
    """Returns the notes that a page has which is exported with these options."""
    yellow = {uuid: tags for uuid, tags in notes.items() if COLOR in tags and tags[COLOR].text == b"yellow"}
    return yellow if "--color" in options else notes


def copy(books):
    return {book: {uuid: dict(tags) for uuid, tags in notes.items()} for book, notes in books.items()}


def read(database, only=None):
    """Returns the books of a reader database, or those in `only`."""
    connection = sqlite3.connect(f"file:{database}?mode=ro", uri=True)
    books = {}
    try:
        if only is None:
            assert connection.execute("PRAGMA integrity_check").fetchone() == ("ok",), database
            only = [book for (book,) in connection.execute("SELECT fast_hash FROM books")]
        for book in only:
            rows = connection.execute(
                "SELECT uuid, tag, tags.text, json, timestamp FROM books LEFT JOIN notes ON book_id = books.id "
                "LEFT JOIN tags ON note_id = notes.id WHERE fast_hash = ? ORDER BY notes.id", (book,))
            for uuid, number, text, json_text, timestamp in rows:
                notes = books.setdefault(book, {})
                if uuid is not None:
                    note = notes.setdefault(uuid, {})
                    if number is not None:
                        note[number] = Tag(timestamp, bytes(text), json_text)
        return books
    finally:
        connection.close()


def difference(wanted, found):
    """Returns the first difference, or None."""
    for book in sorted(wanted.keys() | found.keys()):
        mine, theirs = wanted.get(book), found.get(book)
        if mine == theirs:
            continue
        if mine is None or theirs is None:
            return f"book {book}: wanted {mine is not None}, found {theirs is not None}"
        for uuid in sorted(mine.keys() | theirs.keys()):
            if mine.get(uuid) != theirs.get(uuid):
                return f"book {book}, note {uuid}: wanted {mine.get(uuid)}, found {theirs.get(uuid)}"
    return None
