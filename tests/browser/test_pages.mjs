// Opens every exported page in Chromium, as the .html file that it is and served as XHTML, and
// holds it to what its device file says. With --screenshots: pictures of the sample's pages.
import { readFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';
import { checkColors, checkContent, checkLayout } from './checks.mjs';
import { exportBooks } from './device.mjs';
import { takeScreenshots } from './screenshots.mjs';

const sample = exportBooks('examples/sample_device/device.json', 'build/browser/sample');
const hostile = exportBooks('tests/browser/hostile_device.json', 'build/browser/hostile');
const books = [...sample, ...hostile];

const server = createServer((request, response) => {
    const book = books[Number(request.url.slice(1))];
    response.setHeader('Content-Type', 'application/xhtml+xml');
    response.end(book && readFileSync(book.file));
});
await new Promise((resolve) => { server.listen(0, '127.0.0.1', resolve); });

const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
        '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

async function problemsOf(book, url) {
    const problems = [];
    const report = (problem) => problems.push(problem);
    const context = await browser.newContext();
    const page = await context.newPage();
    page.on('console', (message) => report(`console: ${message.text()}`));
    page.on('pageerror', (error) => report(`error: ${error.message}`));
    page.on('dialog', (dialog) => { report(`dialog: ${dialog.message()}`); dialog.dismiss(); });
    page.on('request', (request) => {
        if (request.url() !== url) report(`loads ${request.url()}`);
    });
    try {
        await page.goto(url);
        await checkContent(page, book, report);
        await checkColors(page, report);
        await checkLayout(page, report);
    } catch (error) {
        report(`it cannot be checked: ${error.message}`);
    }
    await context.close();
    return problems;
}

let failed = 0;
for (const [index, book] of books.entries()) {
    const served = `http://127.0.0.1:${server.address().port}/${index}`;
    for (const url of [pathToFileURL(book.file).href, served]) {
        const problems = await problemsOf(book, url);
        failed += problems.length > 0;
        console.log(problems.length > 0 ? 'FAILED' : 'ok    ', new URL(url).protocol, book.title);
        problems.slice(0, 20).forEach((problem) => console.log(`  - ${problem}`));
    }
}
if (process.argv.includes('--screenshots')) await takeScreenshots(browser, sample);
await browser.close();
server.close();
process.exitCode = failed > 0 ? 1 : 0;
