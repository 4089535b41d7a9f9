'use strict';
(() => {
    const form = document.querySelector('nav form');
    const field = document.querySelector('input[type=search]');
    const none = document.getElementById('none');
    const parts = [...document.querySelectorAll('main > section')];
    let objects; // Each with the texts of its rows, made when they are first looked for

    const textOf = (row) => {
        const texts = [];
        const walker = document.createTreeWalker(row, NodeFilter.SHOW_TEXT);
        while (walker.nextNode()) {
            texts.push(walker.currentNode.data);
        }
        // An address is found in the forms in which it is written: 0x1018:01, 1018:1, 1018sub1.
        const [index, sub] = row.id.slice(2).split('.');
        const address = sub === undefined ? index : `${index}:${sub} 0x${index}:${sub} ${index}sub${sub}`;
        const glued = row.cells[0].textContent;
        return `${glued} ${texts.join(' ')} ${address}`.toLowerCase();
    };
    const collect = () => {
        objects = [];
        for (const row of document.querySelectorAll('#dictionary tr[id]')) {
            const entry = { row, text: textOf(row) };
            if (!row.id.includes('.')) {
                objects.push({ head: entry, subs: [] });
            } else {
                objects[objects.length - 1].subs.push(entry);
            }
        }
    };
    const folds = [...document.querySelectorAll('#dictionary details')];
    const opened = new Map();
    const remember = () => folds.forEach((fold) => opened.has(fold) || opened.set(fold, fold.open));

    const filter = () => {
        const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
        const isActive = words.length > 0;
        parts.forEach((part) => { part.hidden = isActive && part.id !== 'dictionary'; });
        if (isActive && !objects) {
            collect();
            remember();
        }
        if (!objects) {
            return;
        }
        const has = (text) => words.every((word) => text.includes(word));
        let found = 0;
        for (const object of objects) {
            const isWhole = has(object.head.text);
            let isAny = isWhole;
            for (const sub of object.subs) {
                const isFound = isWhole || has(sub.text);
                sub.row.hidden = !isFound;
                isAny = isAny || isFound;
            }
            object.head.row.hidden = !isAny;
            found += isAny ? 1 : 0;
        }
        for (const fold of folds) {
            fold.open = isActive || opened.get(fold);
            (fold.closest('tr') || fold).hidden = isActive && !fold.querySelector('tr[id]:not([hidden])');
        }
        for (const block of document.querySelectorAll('#dictionary .block')) {
            block.hidden = isActive && !block.querySelector('tr[id]:not([hidden])');
        }
        none.hidden = !isActive || found > 0;
    };
    form.hidden = false;
    form.addEventListener('submit', (event) => event.preventDefault());
    field.addEventListener('input', filter);
    document.addEventListener('keydown', (event) => {
        if (event.key === '/' && document.activeElement !== field && !event.ctrlKey && !event.metaKey) {
            event.preventDefault();
            field.focus();
        } else if (event.key === 'Escape' && field.value) {
            field.value = '';
            filter();
        }
    });
    // A link leads to a row that a filter or a fold hides.
    const show = () => {
        const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
        if (!target) {
            return;
        }
        if (field.value) {
            field.value = '';
            filter();
        }
        for (let fold = target.closest('details'); fold; fold = fold.parentElement.closest('details')) {
            fold.open = true;
        }
        target.scrollIntoView();
    };
    addEventListener('hashchange', show);
    show();
    const printed = [];
    addEventListener('beforeprint', () => document.querySelectorAll('details:not([open])').forEach((fold) => {
        printed.push(fold);
        fold.open = true;
    }));
    addEventListener('afterprint', () => printed.splice(0).forEach((fold) => { fold.open = false; }));
})();
