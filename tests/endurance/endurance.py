#!/usr/bin/env python3
"""Simulates a night of use on three devices that export into one folder: edits of notes and of
pages, exports, imports, kills, full disks, two clients at once and a clock that jumps. Checks the
databases, and every byte of the pages and other files, after each round.

  endurance.py CLIENT FOLDER BOOKS SECONDS SEED
"""

import os
import random
import re
import resource
import shutil
import signal
import sys
import time
from collections import Counter

import model
from device import ENDING, Device, Pages, check, delete_note, title_of, verify_page, write_note

NOTES_OF_A_BOOK = 200  # at most; half of it on average
MEMORY = (resource.RLIMIT_AS, 256 << 20)  # the limit of a small machine
OPTIONS = [(), (), (), ("--order", "newest"), ("--color", "yellow"), ("--new",)]


class Night:
    def __init__(self, client, folder, books, seed):
        self.client = client
        self.folder = folder
        self.random = random.Random(seed)
        self.clock = model.Clock()
        everything = {f"{number:032x}": self.new_notes(self.random.randrange(1, NOTES_OF_A_BOOK))
                      for number in range(books)}
        self.pages = Pages(os.path.join(folder, "pages"))
        names = (os.path.join(folder, name) for name in ("one", "two", "three"))
        self.devices = [Device(client, name, self.pages) for name in names]
        for share, device in zip((1, 2, 10), self.devices):
            device.load({book: everything[book] for book in list(everything)[::share]})
        self.kept = []  # copies of pages of any device, with the books in them
        self.rounds = [self.edit, self.edit, self.export, self.export, self.imports, self.imports, self.by_hand,
                       self.kill_import, self.kill_export, self.full_disk, self.together]
        self.counts = Counter()

    def new_notes(self, count):
        uuids = [f"n{self.clock.tick()}" for _ in range(count)]
        return {uuid: model.new_note(self.random, self.clock, uuid) for uuid in uuids}

    def some_books(self, device, most):
        books = sorted(device.books)[:self.random.choice([10, None])]  # some books have pages that get old
        return self.random.sample(books, min(len(books), self.random.randrange(1, most)))

    def any_clock(self):
        times = [(), (), (), ("faketime", "1999-12-31 23:59:59"), ("faketime", "2037-06-01"), ("faketime", "-3 days")]
        return self.random.choice(times)

    def round(self):
        device = self.random.choice(self.devices)
        for path in self.random.sample(sorted(self.pages.digests), max(0, len(self.pages.digests) - 100)):
            os.remove(path)
            del self.pages.digests[path]
        chosen = self.random.choice(self.rounds)
        self.counts[chosen.__name__] += 1
        touched = chosen(device)
        device.verify(touched)
        device.verify_files()
        self.pages.verify()

    def verify_all(self):
        for device in self.devices:
            device.verify()

    def pictures(self):
        """Exports a book with 200 pictures of 300 KB on a small machine."""
        device = Device(self.client, os.path.join(self.folder, "pictures"))
        notes = self.new_notes(200)
        for note in notes.values():
            note[model.IMAGE] = model.Tag(self.clock.tick(), self.random.randbytes(300000), None)
        device.load({"ff": notes})
        (path,) = device.run("export", "ff", "--dir", device.folder, limits=[MEMORY])
        verify_page(self.client, path, device.books, device.folder + "-scratch")
        shutil.rmtree(device.folder)

    # Each round returns the books that it may have changed on the device.

    def edit(self, device):
        books = self.some_books(device, 6)

        def change(connection, all_books):
            for notes, book in ((all_books[book], book) for book in books):
                made = f"n{self.clock.tick()}"
                notes[made] = model.new_note(self.random, self.clock, made)
                changed, deleted = self.random.choice(sorted(notes)), self.random.choice(sorted(notes))
                model.edit(self.random, self.clock, notes[changed], model.COMMENT)
                for uuid in {made, changed}:
                    write_note(connection, book, uuid, notes[uuid])
                if len(notes) > 1:
                    del notes[deleted]
                    delete_note(connection, book, deleted)

        device.edit(change)
        return books

    def to_export(self, device):
        """Chooses options, and books with notes that they select."""
        options = self.random.choice(OPTIONS)
        books = [book for book in self.some_books(device, 5) if model.select(device.books[book], options)]
        return (books, options) if books else (self.some_books(device, 2), ())

    def export(self, device):
        books, options = self.to_export(device)
        process = device.start_export(books, options, prefix=self.any_clock(), limits=[MEMORY])
        self.keep(device.take(books, options, device.finish(process)))
        return books

    def keep(self, written):
        for path, books in written:
            kept = os.path.join(self.folder, "kept", f"{len(self.kept)}.html")
            if len(self.kept) > 200:
                kept = self.kept.pop(self.random.randrange(100))[0]
            shutil.copy(path, kept)
            self.kept.append((kept, books))

    def by_hand(self, _):
        """Changes, cuts, renames or covers a page. Later exports must keep every byte of it."""
        if not self.kept or not self.pages.digests:
            return []
        path = self.random.choice(sorted(self.pages.digests))
        with open(path, "rb") as file:
            content = file.read()
        begin, end = sorted(self.random.randrange(1, len(content)) for _ in range(2))
        with open(self.random.choice(self.kept)[0], "rb") as file:
            changed = [content, content[:begin] + content[end:], file.read()]
        body = content.find(b"<body")
        visible = [text.start() for text in re.finditer(rb"(?<=>)[^<>\s]", content) if text.start() > body]
        if visible:
            place = self.random.choice(visible)
            changed.append(content[:place] + self.random.choice([b"", b"mine "]) + content[place + 1:])
        renamed = re.sub(r"( \(\d+\))?\.html", f" ({self.random.randrange(1, 30)}).html", path)
        os.remove(path)
        del self.pages.digests[path]
        path = path if renamed in self.pages.digests else self.random.choice([path, renamed])
        with open(path, "wb") as file:
            file.write(self.random.choice(changed))
        self.pages.digests[path] = self.pages.read()[path]
        return []

    def imports(self, device):
        if not self.kept:
            return []
        path, books = self.random.choice(self.kept)
        device.run("import", path, prefix=self.any_clock(), limits=[MEMORY])
        model.merge(device.books, books)
        return list(books)

    def kill(self, device, process, has_folder=False):
        """Kills the client, and returns its lines or, if it did not finish, None. May wait for its temporary
        folder before. Opens both databases afterwards, which rolls back cut changes."""
        number = self.random.choice([signal.SIGKILL, self.random.choice(ENDING)])
        end = time.monotonic() + (1 if has_folder else self.random.random() * 0.1)
        while process.poll() is None and time.monotonic() < end and not (has_folder and self.pages.leftovers()):
            pass
        time.sleep(self.random.random() * 0.003 if has_folder else 0)
        process.send_signal(number)
        out, _ = process.communicate()
        check(process.returncode in (0, -number), process.args, "sent", number, "ended with", process.returncode)
        device.run("books")
        check(number == signal.SIGKILL or not self.pages.leftovers(), number, "left", self.pages.leftovers())
        return out.decode().splitlines() if process.returncode == 0 else None

    def kill_import(self, device):
        if not self.kept:
            return []
        path, books = self.random.choice(self.kept)
        lines = self.kill(device, device.start("import", path))
        self.settle(device, books, lines is not None)
        if books.keys() <= device.books.keys():  # a cut import must not make the page this device's own
            self.keep(device.take(books, (), device.finish(device.start_export(books, ()))))
        return list(books)

    def settle(self, device, books, is_done):
        """Expects all of the import on the device or, if the import failed, all or nothing."""
        before = {book: device.books[book] for book in books if book in device.books}
        found = model.read(device.database, books)
        if is_done or model.difference(before, found) is not None:
            model.merge(device.books, books)

    def kill_export(self, device):
        books, options = self.to_export(device)
        lines = self.kill(device, device.start_export(books, options), self.random.random() < 0.5)
        self.keep(device.take(books, options, lines or [None] * len(books)))
        left = self.pages.leftovers()
        self.counts["leftovers"] += bool(left)
        for age in (0, 100) if left else ():
            for path in left:
                os.utime(path, (time.time() - age,) * 2)
            device.take(books, ("--new",), device.finish(device.start_export(books, ("--new",))))
            check(self.pages.leftovers() == (set() if age else left), left, "seconds:", age)
        return books

    def full_disk(self, device):
        book = self.some_books(device, 2)[0]
        limit = (resource.RLIMIT_FSIZE, self.random.randrange(1000))
        status = device.start_export([book], (), limits=[limit]).wait()
        check(status == (not device.place(book, ())[2]), "full disk:", status)
        if self.kept:
            path, books = self.random.choice(self.kept)
            limit = (resource.RLIMIT_FSIZE, self.random.randrange(os.path.getsize(device.database) + 20000))
            status = device.start("import", path, limits=[limit]).wait()
            device.run("books")
            self.settle(device, books, status == 0)
            return [book, *books]
        return [book]

    def together(self, device):
        pages = self.random.sample(self.kept, min(2, len(self.kept)))
        clients = [device.start("import", path) for path, _ in pages]
        for client in clients:
            _, errors = client.communicate()
            check(client.returncode == 0, errors.decode())
        for _, books in pages:
            model.merge(device.books, books)
        book = self.some_books(device, 2)[0]
        rivals = [(other, each) for other in self.devices for each in other.books if other is not device
                  and title_of(each) == title_of(book) and other.books[each] != device.books[book]]
        pairs = [(device, book), (device, book), *self.random.sample(rivals, min(1, len(rivals)))]
        clients = [each.start_export([chosen], ()) for each, chosen in pairs]
        printed = [(*pair, pair[0].finish(client)) for pair, client in zip(pairs, clients)]
        for each, chosen, lines in sorted(printed, key=lambda done: done[2] != [done[0].place(done[1], ())[0]]):
            self.keep(each.take([chosen], (), lines))
        return [book, *(each for _, books in pages for each in books)]


def main(client, folder, books, seconds, seed):
    client, folder = os.path.abspath(client), os.path.abspath(folder)
    print(f"endurance: {books} books, seed {seed}", flush=True)
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(os.path.join(folder, "kept"))
    night = Night(client, folder, int(books), int(seed))
    end = time.monotonic() + float(seconds)
    number = 0
    try:
        night.pictures()
        night.verify_all()
        while time.monotonic() < end:
            number += 1
            night.round()
            if number % 100 == 0:
                night.verify_all()
        night.verify_all()
    except Exception:  # also a page that is not well-formed
        print(f"round {number}, seed {seed}; see {folder}", file=sys.stderr)
        raise
    print(f"{number} rounds: " + ", ".join(f"{name} {count}" for name, count in sorted(night.counts.items())))


if __name__ == "__main__":
    main(*sys.argv[1:])
