// Opens pages that xdd2html writes in a browser, and compares what is seen there with what xddinfo says. Usage:
// node page.js MODULES TOOLS FILE..., where MODULES is the folder with the installed packages and TOOLS the one with the
// programs. CHROMIUM names the browser.
'use strict';

const { spawnSync } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');

const [modules, tools, ...files] = process.argv.slice(2);
const puppeteer = require(path.resolve(modules, 'node_modules/puppeteer-core'));
const axe = fs.readFileSync(path.resolve(modules, 'node_modules/axe-core/axe.min.js'), 'utf-8');
const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'page-'));

const CUT = 200; // Characters of a text from which on it may be cut
let failures = 0;
let entries = 0;
let fields = 0;

function run(program, ...args) {
    const result = spawnSync(path.resolve(tools, program), args, { encoding: 'utf-8', maxBuffer: 1 << 28 });
    if (result.status !== 0) {
        throw new Error(`${program} ${args.join(' ')}: ${result.stderr}`);
    }
    return result.stdout;
}

function check(isRight, what) {
    if (!isRight) {
        failures += 1;
        if (failures < 50) {
            console.error(what);
        }
    }
}

const rowId = (index, sub) => {
    const object = `0x${index.toString(16).toUpperCase().padStart(4, '0')}`;
    return sub === undefined ? object : `${object}.${sub.toString(16).toUpperCase()}`;
};

// What has to stand in the row of an entry. Characters that are shown by their numbers are left out.
const INVISIBLE = /[\p{Cc}\p{Cf}\p{Zl}\p{Zp}]/u;
function textsOf(entry) {
    const texts = entry.texts ?? { labels: [], descriptions: [], allowedValues: [] };
    return [entry.name, entry.accessType, entry.PDOmapping, entry.defaultValue, entry.actualValue, entry.lowLimit,
        entry.highLimit, entry.denotation, ...texts.labels.map((label) => label.text),
        ...texts.descriptions.map((label) => label.text), ...texts.allowedValues.map((value) => value.low)]
        .filter((text) => text && !INVISIBLE.test(text))
        .map((text) => text.slice(0, CUT).replace(/\s+/g, ' ').trim());
}

// All rows of the dictionary with their texts, in the order of the page.
const rowsOf = (page) => page.evaluate(() => [...document.querySelectorAll('#dictionary tr[id]')].map((row) => ({
    id: row.id, text: row.textContent.replace(/\s+/g, ' '),
})));

async function compareEntries(file, page) {
    const model = JSON.parse(run('xddinfo', '--json', file));
    const rows = new Map((await rowsOf(page)).map((row) => [row.id, row.text]));
    let count = 0;
    const compare = (entry, id) => {
        const text = rows.get(id);
        count += 1;
        check(text !== undefined, `${file}: there is no ${id}`);
        for (const expected of model.textsLeftOut ? [] : textsOf(entry)) {
            check(text?.includes(expected), `${file}: ${id} does not have "${expected}", but "${text}"`);
        }
    };
    for (const object of model.networkProfile.objects) {
        compare(object, rowId(object.index));
        const seen = new Map();
        for (const sub of object.subObjects) {
            const times = (seen.get(sub.subIndex) ?? 0) + 1;
            seen.set(sub.subIndex, times);
            compare(sub, rowId(object.index, sub.subIndex) + (times > 1 ? `-${times}` : ''));
        }
    }
    check(count === rows.size, `${file}: ${rows.size} rows instead of ${count}`);
    entries += count;
    return model;
}

// Each field in its place, as wide as its bits.
async function comparePdos(file, page) {
    const { pdos } = JSON.parse(run('xddinfo', '--pdos', '--json', file));
    const shown = await page.evaluate(() => [...document.querySelectorAll('[data-pdo]')].map((one) => ({
        name: one.dataset.pdo,
        width: one.querySelector('.bits')?.clientWidth ?? 0,
        fields: [...one.querySelectorAll('.bits [data-entry]')].map((field) => ({
            entry: field.dataset.entry,
            bits: Number(field.dataset.bits),
            width: field.getBoundingClientRect().width,
        })),
    })));
    check(shown.map((pdo) => pdo.name).sort().join() === pdos.map((pdo) => pdo.name).sort().join(),
        `${file}: other PDOs are shown: ${shown.map((pdo) => pdo.name)}`);
    for (const pdo of pdos) {
        const one = shown.find((other) => other.name === pdo.name);
        const wanted = pdo.fields.map((field) => `${rowId(field.index, field.subIndex)} ${field.bits}`).join();
        const got = one?.fields.map((field) => `${field.entry} ${field.bits}`).join();
        check(wanted === got, `${file}: ${pdo.name} shows ${got} instead of ${wanted}`);
        for (const field of one?.fields ?? []) {
            fields += 1;
            check(Math.abs(field.width - one.width * field.bits / 64) < 1.5,
                `${file}: ${pdo.name} ${field.entry} is ${field.width} of ${one.width} wide for ${field.bits} bits`);
        }
    }
}

const type = async (page, text) => page.evaluate((value) => {
    const field = document.querySelector('input[type=search]');
    field.value = value;
    field.dispatchEvent(new Event('input', { bubbles: true }));
    return {
        rows: [...document.querySelectorAll('#dictionary tr[id]')].filter((row) => row.checkVisibility()).map((row) => row.id),
        others: [...document.querySelectorAll('main > section:not(#dictionary)')].filter((one) => one.checkVisibility()).length,
    };
}, text);

// All words, in any case; an object comes with its sub-objects.
async function filter(file, page, model) {
    const before = (await type(page, '')).rows.length;
    const object = model.networkProfile.objects.find((one) => one.subObjects.length > 1) ?? model.networkProfile.objects[0];
    const ids = [rowId(object.index), ...object.subObjects.map((sub) => rowId(object.index, sub.subIndex))];
    const number = object.index.toString(16).padStart(4, '0');
    for (const text of [number, `0x${number.toUpperCase()}`]) {
        const found = await type(page, text);
        check(ids.every((id) => found.rows.includes(id)) && found.others === 0,
            `${file}: the filter shows ${found.rows} for ${text}`);
    }
    if (object.subObjects.length > 1) {
        const sub = object.subObjects[1].subIndex;
        const found = await type(page, `${number}:${sub.toString(16)}`);
        check(found.rows.includes(rowId(object.index, sub)) && found.rows.includes(ids[0]) && !found.rows.includes(ids[1]),
            `${file}: the filter shows ${found.rows} for ${number}:${sub.toString(16)}`);
    }
    const word = object.name.split(/\s+/)[0].toUpperCase();
    check((await type(page, `${word}  ${number}`)).rows.includes(ids[0]), `${file}: the filter does not find ${word}`);
    check((await type(page, 'no such word 4711')).rows.length === 0, `${file}: the filter finds what is not there`);
    check((await type(page, '')).rows.length === before, `${file}: the filter does not show all again`);
}

async function accessibility(file, page, scheme) {
    await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
    await page.evaluate(axe);
    const result = await page.evaluate(() => window.axe.run({ resultTypes: ['violations'] }));
    for (const violation of result.violations.filter((one) => ['serious', 'critical'].includes(one.impact))) {
        check(false, `${file}: ${scheme}: ${violation.id}: ${violation.nodes[0].html.slice(0, 200)}: ${violation.nodes[0].failureSummary}`);
    }
}

// Opens a page, in which nothing may be asked for and nothing said.
async function open(browser, file, html) {
    const page = await browser.newPage();
    await page.setViewport({ width: 1400, height: 1000 });
    const address = `file://${html}`;
    page.on('request', (request) => check(request.url().split('#')[0] === encodeURI(address), `${file}: asks for ${request.url()}`));
    page.on('console', (message) => check(false, `${file}: says ${message.text()}`));
    page.on('pageerror', (error) => check(false, `${file}: fails with ${error.message}`));
    page.on('dialog', (dialog) => {
        check(false, `${file}: opens a dialog`);
        dialog.dismiss();
    });
    await page.goto(address);
    return page;
}

async function look(browser, file) {
    const html = path.join(folder, 'page.html');
    run('xdd2html', '-o', html, file);
    // The compact form of an EDS has many entries in a few lines.
    const size = fs.statSync(html).size;
    const source = Math.max(fs.statSync(file).size, Buffer.byteLength(run('xddnormalize', '-q', file)));
    check(size <= 3 * source + 200000, `${file}: the page has ${size} bytes`);
    const page = await open(browser, file, html);
    const model = await compareEntries(file, page);
    await comparePdos(file, page);
    if (entries < 20000) {
        await filter(file, page, model);
    }
    await page.setViewport({ width: 380, height: 800 });
    const width = await page.evaluate(() => document.documentElement.scrollWidth);
    check(width <= 380, `${file}: ${width} pixels wide at 380`);
    await page.close();

    // The checker of accessibility is a script of its own, which the policy of the page does not allow.
    const other = await browser.newPage();
    await other.setBypassCSP(true);
    await other.goto(`file://${html}`);
    await accessibility(file, other, 'light');
    await accessibility(file, other, 'dark');
    await other.close();

    const still = await browser.newPage();
    await still.setJavaScriptEnabled(false);
    await still.goto(`file://${html}`);
    const readable = await still.evaluate(() => ({
        form: document.querySelector('nav form').checkVisibility(),
        rows: document.querySelectorAll('#dictionary tr[id]').length,
        hidden: [...document.querySelectorAll('#dictionary tr[id]')].filter((row) => !row.checkVisibility() && !row.closest('details')).length,
    }));
    check(!readable.form && readable.hidden === 0 && readable.rows > 0, `${file}: without scripts: ${JSON.stringify(readable)}`);
    await still.close();
}

// Names that would do something if they became markup.
async function hostile(browser, file) {
    const names = ['&lt;script&gt;alert(1)&lt;/script&gt;', '&lt;img src=x onerror=alert(1)&gt;', '&quot; onclick=&quot;alert(1)',
        'javascript:alert(1)', '\u202Eabc\u2066', 'a&#x85;b\u200Bc', '&lt;/style&gt;&lt;b&gt;', 'x'.repeat(1000000)];
    let text = fs.readFileSync(file, 'utf-8');
    let next = 0;
    text = text.replace(/ name="[^"]*"/g, () => ` name="${names[next++ % (next > 40 ? names.length - 1 : names.length)]}"`);
    text = text.replace(/>(Works|Drive 2|rpm|shaft|Off)</g, (whole, word) => `>${names[word.length % 3]}<`);
    const bad = path.join(folder, '<img src=x onerror=alert(2)>.xdd');
    fs.writeFileSync(bad, text);
    const html = path.join(folder, 'hostile.html');
    run('xdd2html', '-o', html, bad);
    const page = await open(browser, 'hostile', html);
    const found = await page.evaluate(() => ({
        title: /[<>\u202E]/.test(document.title.replace(/^<.*>/, '')),
        scripts: document.scripts.length,
        styles: document.styleSheets.length,
        images: document.images.length,
        handlers: document.querySelectorAll('[onclick],[onerror],[style]').length,
        links: [...document.links].filter((link) => !link.getAttribute('href').startsWith('#')).length,
        bold: document.querySelectorAll('#dictionary b').length,
        names: [...document.querySelectorAll('.c')].map((one) => one.textContent).filter((one) => one === 'U+202E').length > 0,
        width: document.documentElement.scrollWidth,
    }));
    check(JSON.stringify(found) === JSON.stringify(
        { title: false, scripts: 1, styles: 1, images: 0, handlers: 0, links: 0, bold: 0, names: true, width: 1400 }),
    `hostile: ${JSON.stringify(found)}`);
    await comparePdos(bad, page);
    await page.close();
    run('xdd2html', '--output-dir', folder, bad, file);
    const index = await browser.newPage();
    await index.goto(`file://${path.join(folder, 'index.html')}`);
    const links = await index.evaluate(() => [...document.links].map((link) => link.href));
    check(links.length === 2, `index: ${links}`);
    for (const link of links) {
        await index.goto(link);
        check(await index.evaluate(() => document.querySelector('#dictionary') !== null), `index: ${link} leads nowhere`);
    }
    await index.close();
}

(async () => {
    const browser = await puppeteer.launch({
        executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
        args: ['--no-sandbox', '--disable-gpu', '--disable-dev-shm-usage'],
    });
    for (const file of files) {
        await look(browser, path.resolve(file));
    }
    await hostile(browser, path.resolve(files[0]));
    await browser.close();
    fs.rmSync(folder, { recursive: true });
    console.log(`${files.length} pages: ${entries} entries and ${fields} fields of PDOs compared, ${failures} failures`);
    process.exit(failures > 0 || entries === 0 || fields === 0 ? 1 : 0);
})();
