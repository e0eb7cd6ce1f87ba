// Checks of an exported page. Each calls `report` for every problem.
import { isDeepStrictEqual } from 'node:util';
import axe from 'axe-core';
import * as facts from './page_facts.mjs';

const allowedElements = new Set(['html xmlns', 'head', 'meta name content', 'meta charset', 'title',
    'style type', 'script type book_hash', 'body', 'div class', 'div id class', 'h1', 'span', 'p',
    'p class', 'br', 'img src']);

const huesInDegrees = {
    red: 0, orange: 27, yellow: 46, green: 113, cyan: 187, blue: 216, violet: 263, purple: 263, pink: 333,
};

function isColored(name, [r, g, b]) {
    const saturation = 1 - Math.min(r, g, b) / Math.max(r, g, b);
    if (!(name in huesInDegrees)) return saturation < 0.25;
    const hue = Math.atan2(Math.sqrt(3) * (g - b), 2 * r - g - b) * 180 / Math.PI;
    const distance = Math.abs(((hue - huesInDegrees[name] + 540) % 360) - 180);
    return saturation > 0.35 && distance < 20;
}

export async function checkContent(page, book, report) {
    const { title, heading, author, notes, elements } = await page.evaluate(facts.content);
    const date = title.match(/^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d - /);
    const shown = { title, heading, author, ...notes };
    const dated = `${date}${book.title}`;
    const noted = { title: dated, heading: dated, author: book.author, ...book.notes };
    for (const part in { ...shown, ...noted }) {
        if (isDeepStrictEqual(shown[part], noted[part])) continue;
        report(`shown: ${JSON.stringify(shown[part])}\n    noted: ${JSON.stringify(noted[part])}`);
    }
    const foreign = elements.filter((element) => !allowedElements.has(element));
    if (foreign.length > 0) report(`it has unknown elements: ${foreign}`);
    if (await page.evaluate(facts.showsDump)) report('it shows its dump');
}

export async function checkColors(page, report) {
    for (const [noteClass, color] of await page.evaluate(facts.noteColors)) {
        const name = noteClass.replace('bookmark bm-color-', '');
        if (!isColored(name, color)) report(`${name} looks like rgb(${color})`);
    }
}

// Violations that only other markup could avoid: it names neither a language nor the content of a picture.
const ofMarkup = new Set(['html-has-lang', 'image-alt', 'landmark-one-main', 'region']);

export async function checkAccessibility(page, report) {
    await page.evaluate(axe.source);
    for (const media of [{ colorScheme: 'dark' }, { media: 'print' }, {}]) {
        await page.emulateMedia({ media: 'screen', colorScheme: 'light', ...media });
        for (const [rule, places] of await page.evaluate(facts.violations)) {
            if (!ofMarkup.has(rule)) report(`${rule} in ${JSON.stringify(media)}: ${places.slice(0, 3)}`);
        }
    }
}

const startsRight = (text) => /^\P{L}*[\p{Script=Arabic}\p{Script=Hebrew}]/u.test(text);

// Width in pixels, and whether the device is a handheld, which lays a page out wider than its screen.
const screens = [[1400, false], [820, false], [820, true], [390, false], [390, true]];

export async function checkLayout(page, report) {
    for (const [text, room] of await page.evaluate(facts.firstLetters)) {
        const side = startsRight(text) ? 'right' : 'left';
        if (room[side] > 2) report(`does not start from the ${side}: ${text}`);
    }
    const session = await page.context().newCDPSession(page);
    for (const [width, mobile] of screens) {
        await session.send('Emulation.setDeviceMetricsOverride',
            { width, height: 900, screenWidth: width, screenHeight: 900, mobile, deviceScaleFactor: 1 });
        for (const type of [16, 32]) {
            await session.send('Page.setFontSizes', { fontSizes: { standard: type, fixed: type } });
            for (const problem of await page.evaluate(facts.misplaced, type)) {
                report(`${width} pixels wide${mobile ? ', mobile' : ''}, type ${type}: ${problem}`);
            }
        }
    }
}
