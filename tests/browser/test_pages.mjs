// Opens every exported page in Chromium, as HTML and as XHTML, and compares it with its device file.
// With --screenshots, also takes pictures of the sample's pages.
import { copyFileSync } from 'node:fs';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';
import { checkAccessibility, checkColors, checkContent, checkLayout } from './checks.mjs';
import { exportBooks } from './device.mjs';
import { takeScreenshots } from './screenshots.mjs';

const sample = exportBooks('examples/sample_device/device.json', 'build/browser/sample');
const hostile = exportBooks('tests/browser/hostile_device.json', 'build/browser/hostile');
const books = [...sample, ...hostile];

const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
        '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

async function problemsOf(book, url) {
    const problems = [];
    const report = (problem) => problems.push(problem);
    const page = await browser.newPage();
    page.on('console', (message) => report(`console: ${message.text()}`));
    page.on('pageerror', (error) => report(`error: ${error.message}`));
    page.on('dialog', (dialog) => { report(`dialog: ${dialog.message()}`); dialog.dismiss(); });
    page.on('request', (request) => {
        if (request.url() !== url) report(`loads ${request.url()}`);
    });
    await page.goto(url);
    const type = await page.evaluate(() => document.contentType);
    if (type.endsWith('xml') !== url.endsWith('xhtml')) report(`it is read as ${type}`);
    await checkContent(page, book, report);
    await checkColors(page, report);
    await checkAccessibility(page, report);
    await checkLayout(page, report);
    await page.close();
    return problems;
}

let failed = 0;
for (const book of books) {
    copyFileSync(book.file, `${book.file}.xhtml`);
    for (const file of [book.file, `${book.file}.xhtml`]) {
        const problems = await problemsOf(book, pathToFileURL(file).href);
        failed += problems.length > 0;
        console.log(problems.length > 0 ? 'FAILED' : 'ok    ', file);
        problems.slice(0, 20).forEach((problem) => console.log(`  - ${problem}`));
    }
}
if (process.argv.includes('--screenshots')) await takeScreenshots(browser, sample);
await browser.close();
process.exitCode = failed > 0 ? 1 : 0;
