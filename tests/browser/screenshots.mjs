// Takes pictures of exported pages on a phone, a tablet, a desktop and a printer.
import { execFileSync } from 'node:child_process';
import { rmSync } from 'node:fs';
import { pathToFileURL } from 'node:url';

const folder = 'build/browser/screenshots';

const readers = {
    phone: { viewport: { width: 390, height: 844 }, isMobile: true },
    tablet: { viewport: { width: 820, height: 1180 }, isMobile: true },
    desktop: { viewport: { width: 1400, height: 900 } },
};

export async function takeScreenshots(browser, books) {
    rmSync(folder, { recursive: true, force: true });
    const page = await browser.newPage({ viewport: { width: 1000, height: 1500 } });
    for (const [index, book] of books.entries()) {
        const name = `${folder}/${index + 1}`;
        const url = pathToFileURL(book.file).href;
        for (const [reader, options] of Object.entries(readers)) {
            const view = await browser.newPage(options);
            await view.goto(url);
            for (const colorScheme of ['light', 'dark']) {
                await view.emulateMedia({ colorScheme });
                await view.screenshot({ path: `${name}-${reader}-${colorScheme}.png`, fullPage: true });
            }
            await view.close();
        }
        await page.goto(url);
        await page.pdf({ path: `${name}-print.pdf`, format: 'A4' });
        execFileSync('pdftoppm', ['-r', '80', '-png', `${name}-print.pdf`, `${name}-print`]);
        if (book.title === 'Madame Bovary') await page.screenshot({ path: `${folder}/readme.png` });
    }
    await page.close();
}
