// Facts about an opened page. Every function runs inside the page, so that it cannot use the rest of
// this file.

export function content() {
    const text = (node) => (node.localName === 'br' ? '\n' : node.data);
    const isShown = (element) => element.checkVisibility({ visibilityProperty: true, opacityProperty: true });
    const paragraphs = (note, part) => [...note.querySelectorAll(`.${part} > p`)]
        .filter(isShown).map((p) => [...p.childNodes].map(text).join(''));
    const isPicture = (img) => isShown(img) && img.naturalWidth > 0;
    return {
        title: document.querySelector('title').textContent,
        heading: document.querySelector('h1').textContent,
        author: document.querySelector('span')?.textContent ?? '',
        notes: [...document.querySelectorAll('.bookmark[id]')].map((note) => ({
            id: note.id,
            class: note.className,
            page: note.querySelector('.bm-page').textContent,
            text: paragraphs(note, 'bm-text'),
            pictures: [...note.querySelectorAll('img')].filter(isPicture).length,
            comment: paragraphs(note, 'bm-note'),
        })),
        elements: [...document.querySelectorAll('*')].map((element) =>
            [element.localName, ...[...element.attributes].map(({ name }) => name)].join(' ')),
    };
}

export function showsDump() {
    const dump = document.querySelector('script');
    return getComputedStyle(dump).display !== 'none' ||
        document.documentElement.innerText.includes(dump.textContent.slice(0, 40));
}

// Returns the class of every note, and the colour of the bar at its side as red, green and blue.
export function noteColors() {
    const barred = '.bm-page:only-child, .bm-text p, .bm-page + .bm-image, .bm-page + .bm-note p';
    const bar = (note) => getComputedStyle(note.querySelector(barred), '::before');
    return [...document.querySelectorAll('.bookmark[id]')].map((note) =>
        [note.className, bar(note).borderLeftColor.match(/[\d.]+/g).map(Number)]);
}

// Returns the rules of axe that the page violates, with the places.
export async function violations() {
    const { violations } = await axe.run({ resultTypes: ['violations'] });
    return violations.map(({ id, nodes }) => [id, nodes.map(({ html }) => html)]);
}

// Returns the elements that leave the page sideways, are cut off, overlap others, or are too small for
// a reader whose type has that many pixels.
export function misplaced(type) {
    const width = document.documentElement.clientWidth;
    const scale = Math.min(1, screen.width / width);
    const problems = document.documentElement.scrollWidth > width ? ['the page scrolls sideways'] : [];
    const boxes = [...document.querySelectorAll('h1, span, p, img')].flatMap((element) => {
        const range = document.createRange();
        range.selectNodeContents(element);
        const rects = (element.localName === 'img' ? element : range).getClientRects();
        return [...rects].filter((rect) => rect.width > 0).map((rect) => ({ element, rect }));
    });
    // Lines may overlap slightly, because their boxes are taller than the letters.
    const overlap = ({ element: e, rect: a }, { element: f, rect: b }) => e !== f &&
        Math.min(a.right, b.right) - Math.max(a.left, b.left) > 1 &&
        Math.min(a.bottom, b.bottom) - Math.max(a.top, b.top) > 0.3 * Math.min(a.height, b.height);
    boxes.forEach((box, index) => {
        const { element: { className, textContent }, rect } = box;
        const report = (problem) => problems.push(`${className} "${textContent}" ${problem}`);
        if (rect.left < -1 || rect.right > width + 1) report('leaves the page');
        if (boxes.slice(index + 1).some((other) => overlap(box, other))) report('overlaps another element');
        if (parseFloat(getComputedStyle(box.element).fontSize) * scale < 0.75 * type) report('is tiny');
    });
    for (const element of document.querySelectorAll('body *')) {
        const { scrollWidth, clientWidth, scrollHeight, clientHeight } = element;
        const isLarger = scrollWidth > clientWidth || scrollHeight > clientHeight;
        if (isLarger && getComputedStyle(element).overflow !== 'visible') {
            problems.push(`${element.className} "${element.textContent}" is cut off`);
        }
    }
    return problems;
}

// Returns the text of every paragraph, with the space to the left and right of its first letter, in ems.
export function firstLetters() {
    const room = (p) => {
        const range = document.createRange();
        range.setStart(p.firstChild, 0);
        range.setEnd(p.firstChild, 1);
        const [first, box] = [range.getBoundingClientRect(), p.getBoundingClientRect()];
        const em = parseFloat(getComputedStyle(p).fontSize);
        return { left: (first.left - box.left) / em, right: (box.right - first.right) / em };
    };
    return [...document.querySelectorAll('.bm-text > p, .bm-note > p')]
        .filter((p) => p.firstChild?.data).map((p) => [p.textContent, room(p)]);
}
