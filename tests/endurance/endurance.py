#!/usr/bin/env python3
"""Simulates a night of use on three devices: edits, exports, imports, kills, full disks, two
clients at once and a clock that jumps. Checks the databases, pages and files after each round.

  endurance.py CLIENT FOLDER BOOKS SECONDS SEED
"""

import os
import random
import resource
import shutil
import signal
import sys
import time
from collections import Counter

import model
from device import Device, check, delete_note, title_of, verify_page, write_note

NOTES_OF_A_BOOK = 200  # at most; half of it on average
MEMORY = (resource.RLIMIT_AS, 256 << 20)  # the limit of a small machine


class Night:
    def __init__(self, client, folder, books, seed):
        self.client = client
        self.folder = folder
        self.random = random.Random(seed)
        self.clock = model.Clock()
        everything = {f"{number:032x}": self.new_notes(self.random.randrange(1, NOTES_OF_A_BOOK))
                      for number in range(books)}
        self.devices = [Device(client, os.path.join(folder, name)) for name in ("one", "two", "three")]
        for share, device in zip((1, 2, 10), self.devices):
            device.load({book: everything[book] for book in list(everything)[::share]})
        self.kept = []  # pages of any device, with the books in them
        self.rounds = [self.edit, self.edit, self.export, self.update, self.imports, self.imports,
                       self.kill_import, self.kill_export, self.full_disk, self.together]
        self.counts = Counter()

    def new_notes(self, count):
        uuids = [f"n{self.clock.tick()}" for _ in range(count)]
        return {uuid: model.new_note(self.random, self.clock, uuid) for uuid in uuids}

    def some_books(self, device, most):
        return self.random.sample(sorted(device.books), min(len(device.books), self.random.randrange(1, most)))

    def any_clock(self):
        times = [(), (), (), ("faketime", "1999-12-31 23:59:59"), ("faketime", "2037-06-01"), ("faketime", "-3 days")]
        return self.random.choice(times)

    def round(self):
        device = self.random.choice(self.devices)
        chosen = self.random.choice(self.rounds)
        self.counts[chosen.__name__] += 1
        touched = chosen(device)
        device.verify(touched)
        device.verify_files()

    def verify_all(self):
        for device in self.devices:
            device.verify()
            for path in self.random.sample(sorted(device.carried), min(5, len(device.carried))):
                self.verify(path, device.carried[path])

    def verify(self, path, books):
        verify_page(self.client, path, books, os.path.join(self.folder, "scratch"))

    def pictures(self):
        """Exports a book with 200 pictures of 300 KB on a small machine."""
        device = Device(self.client, os.path.join(self.folder, "pictures"))
        notes = self.new_notes(200)
        for note in notes.values():
            note[model.IMAGE] = model.Tag(self.clock.tick(), self.random.randbytes(300000), None)
        device.load({"ff": notes})
        (path,) = device.run("export", "ff", "--dir", device.pages, limits=[MEMORY])
        self.verify(path, device.books)
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

    def export(self, device):
        book = self.some_books(device, 2)[0]
        lines = device.run("export", book, "--dir", device.pages, prefix=self.any_clock(), limits=[MEMORY])
        check(len(lines) == 1, "printed", lines)
        self.keep(lines[0], device, book)
        return [book]

    def keep(self, path, device, book):
        books = model.copy({book: device.books[book]})
        self.verify(path, books)
        kept = os.path.join(self.folder, "kept", f"{len(self.kept)}.html")
        if len(self.kept) > 200:
            kept = self.kept.pop(self.random.randrange(100))[0]
        shutil.move(path, kept)
        self.kept.append((kept, books))

    def update(self, device):
        books = self.some_books(device, 9)
        lines = device.run("export", *books, "--update", "--dir", device.pages, prefix=self.any_clock())
        self.take_updates(device, books, lines)
        return books

    @staticmethod
    def take_updates(device, books, lines):
        for book in books:
            named = [path for path in lines if os.path.basename(path).startswith(title_of(book))]
            check(len(named) < 2, "printed", named)
            device.take_update(book, named[0] if named else None)

    def imports(self, device):
        if not self.kept:
            return []
        path, books = self.random.choice(self.kept)
        device.run("import", path, prefix=self.any_clock(), limits=[MEMORY])
        model.merge(device.books, books)
        return list(books)

    def kill(self, process):
        time.sleep(self.random.random() * 0.015)
        process.send_signal(self.random.choice([signal.SIGKILL, signal.SIGTERM, signal.SIGINT]))
        process.communicate()
        return process.returncode

    def kill_import(self, device):
        if not self.kept:
            return []
        path, books = self.random.choice(self.kept)
        status = self.kill(device.start("import", path))
        device.repair(status == -signal.SIGKILL)
        self.settle(device, books, status == 0)
        return list(books)

    def settle(self, device, books, is_done):
        """Expects all of the import on the device or, if the import failed, all or nothing."""
        before = {book: device.books[book] for book in books if book in device.books}
        found = model.read(device.database, books)
        if is_done or model.difference(before, found) is not None:
            model.merge(device.books, books)

    def kill_export(self, device):
        book = self.some_books(device, 2)[0]
        status = self.kill(device.start("export", book, "--dir", device.pages))
        device.repair(status == -signal.SIGKILL)
        made = {os.path.join(device.pages, name) for name in os.listdir(device.pages)} - device.carried.keys()
        check(len(made) <= 1 and (made or status != 0), "made", made, "status", status)
        for path in made:
            self.keep(path, device, book)
        return [book]

    def full_disk(self, device):
        book = self.some_books(device, 2)[0]
        limit = (resource.RLIMIT_FSIZE, self.random.randrange(1000))
        process = device.start("export", book, "--dir", device.pages, limits=[limit])
        check(process.wait() == 1, "a full disk, and status", process.returncode, process.stderr.read())
        device.repair(False)
        if self.kept:
            path, books = self.random.choice(self.kept)
            limit = (resource.RLIMIT_FSIZE, self.random.randrange(os.path.getsize(device.database) + 20000))
            status = device.start("import", path, limits=[limit]).wait()
            device.repair(False)
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
        clients = [device.start("export", book, "--update", "--dir", device.pages) for _ in range(2)]
        lines = [line for client in clients for line in client.communicate()[0].decode().splitlines()]
        check(len(set(lines)) < 2, "two updates at once wrote", lines)
        self.take_updates(device, [book], lines[:1])
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
