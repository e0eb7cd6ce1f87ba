// Loads a device file into a collection, exports its books, and returns the expected content of each page.
import { execFileSync } from 'node:child_process';
import { mkdirSync, readFileSync, rmSync } from 'node:fs';
import path from 'node:path';

const client = path.resolve('build/host/client/notes-export');

const paragraphs = (text) => (text ? text.replace(/[\r\u2028]/g, '\n').split('\u2029') : []);

const shownNote = (note) => ({
    id: note.uuid,
    class: `bookmark bm-color-${note.color ?? 'note'}`,
    page: note.page === undefined ? '' : String(Math.trunc(note.page)),
    text: paragraphs(note.text),
    pictures: note.image ? 1 : 0,
    comment: paragraphs(note.comment),
});

const timeOf = (note) => note.timestamp ?? 0;

// By page, then by time; a note without a page after the one that was made before it.
function inReadingOrder(notes) {
    const ordered = notes
        .filter((note) => note.page !== undefined)
        .sort((a, b) => a.page - b.page || timeOf(a) - timeOf(b));
    for (const note of notes.filter((other) => other.page === undefined)) {
        const times = ordered.map(timeOf).filter((time) => time <= timeOf(note));
        const before = ordered.map(timeOf).lastIndexOf(Math.max(...times));
        ordered.splice(before + 1, 0, note);
    }
    return ordered;
}

export function exportBooks(deviceFile, folder) {
    rmSync(folder, { recursive: true, force: true });
    mkdirSync(folder, { recursive: true });
    const run = (...command) =>
        execFileSync(client, ['-C', folder, ...command], { encoding: 'utf8' }).trimEnd();
    run('load', deviceFile);
    return JSON.parse(readFileSync(deviceFile, 'utf8')).books.map((book) => ({
        file: path.resolve(run('export', book.hash)),
        title: book.title,
        author: book.author ?? '',
        notes: inReadingOrder(book.notes).map(shownNote),
    }));
}
