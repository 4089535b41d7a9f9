// Takes a picture of a page. Usage: node picture.js MODULES PAGE PNG, where MODULES is the folder with the installed
// packages. CHROMIUM names the browser.
'use strict';

const path = require('path');

const [modules, page, png] = process.argv.slice(2);
const puppeteer = require(path.resolve(modules, 'node_modules/puppeteer-core'));

(async () => {
    const browser = await puppeteer.launch({
        executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
        args: ['--no-sandbox', '--disable-gpu', '--disable-dev-shm-usage'],
    });
    const view = await browser.newPage();
    await view.setViewport({ width: 1200, height: 760 });
    await view.goto(`file://${path.resolve(page)}`);
    await view.evaluate(() => document.getElementById('pdos').scrollIntoView());
    await view.screenshot({ path: png });
    await browser.close();
})();
