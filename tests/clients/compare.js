// Loads EDS files with another stack and compares what it reads with the description that they were made from.
// Usage: node compare.js STACK TOOLS FILE..., where STACK is the folder with the installed packages and TOOLS the one
// with the programs. What differs has to be in the report of xdd2eds.
'use strict';

const assert = require('assert');
const { spawnSync } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');

const [stack, tools, ...files] = process.argv.slice(2);
const { Eds } = require(path.resolve(stack, 'node_modules/canopen/source/eds'));

const ARRAY = 8;
const DOMAIN = 2;
const DOMAIN_TYPE = 15;
const TEXT_TYPES = [9, 10, 11, 12, 13, 15];
const SIGNED_BITS = { 2: 8, 3: 16, 4: 32, 16: 24, 18: 40, 19: 48, 20: 56, 21: 64 };

function run(program, ...args) {
    const result = spawnSync(path.resolve(tools, program), args, { encoding: 'utf-8', maxBuffer: 1 << 28 });
    if (result.status !== 0) {
        throw new Error(`${program} ${args.join(' ')}: ${result.stderr}`);
    }
    return result;
}

// A value as both sides should understand it, whatever its writing.
function meaning(text, type) {
    const plain = (text ?? '').trim();
    if (plain === '' || TEXT_TYPES.includes(type)) {
        return plain.replace(/\s/g, '');
    }
    if (type === 1) {
        return plain.replace('true', '1').replace('false', '0').replace(/^0x0*(?=.)/, '');
    }
    if (type === 8 || type === 17) {
        return String(Number(plain));
    }
    const node = /\$NODEID/i.test(plain);
    const number = plain.replace(/\s/g, '').replace(/\+?\$NODEID\+?/i, '') || '0';
    const negative = number.startsWith('-');
    const digits = number.replace(/^[+-]/, '');
    if (!/^(0x[0-9a-f]+|[0-9]+)$/i.test(digits)) {
        return plain; // No number
    }
    let value = BigInt(/^0x/i.test(digits) ? digits : digits.replace(/^0+(?=.)/, ''));
    const bits = SIGNED_BITS[type];
    if (bits && /^0x/i.test(digits)) {
        value = BigInt.asIntN(bits, value);
    }
    return `${node ? 'NODEID+' : ''}${negative ? -value : value}`;
}

function accessOf(entry) {
    if (entry.accessType === 'rw' && entry.PDOmapping === 'TPDO') {
        return 'rwr';
    }
    return entry.accessType === 'rw' && entry.PDOmapping === 'RPDO' ? 'rww' : entry.accessType;
}

// What the stack should hold for a variable.
function expected(entry, array) {
    const type = entry.dataType || array || DOMAIN_TYPE;
    const limit = (text) => {
        // It takes 0 for no limit, and no more of a real number than parseInt does.
        const isReal = type === 8 || type === 17;
        return parseInt(isReal ? text : meaning(text, type)) || undefined;
    };
    return {
        name: entry.name,
        type,
        access: accessOf(entry),
        value: meaning(entry.defaultValue, type),
        mapping: entry.objectType === DOMAIN ? undefined : (entry.PDOmapping ?? 'no') === 'no' ? '0' : '1',
        low: limit(entry.lowLimit),
        high: limit(entry.highLimit),
    };
}

function found(object) {
    return {
        name: object.parameterName,
        type: object.dataType,
        access: object.accessType,
        value: meaning(object.defaultValue, object.dataType),
        mapping: object.pdoMapping === false ? '0' : object.pdoMapping,
        low: object.lowLimit,
        high: object.highLimit,
    };
}

// The PDOs that are sent or received, with the entries that they carry. CAN-IDs are those of node-ID 0. The stack leaves
// out entries that are not described.
function pdosOfLayout(layout, eds) {
    const isDescribed = (field) => eds.getEntry(field.index) !== undefined;
    return layout
        .filter((pdo) => pdo.enabled && pdo.canId && pdo.communication)
        .map((pdo) => ({
            direction: pdo.direction,
            canId: pdo.canId,
            type: pdo.transmissionType,
            inhibit: pdo.inhibitTimeMicroseconds / 100,
            timer: pdo.eventTimerMilliseconds,
            entries: pdo.fields.filter(isDescribed).map((field) => `${field.index}:${field.subIndex}`),
        }));
}

// The same as the stack computes it, which does not know the node-ID in a value; the reason where it does not do so.
function pdosOfStack(edsFile) {
    const text = fs.readFileSync(edsFile, 'latin1');
    fs.writeFileSync(edsFile, text.replace(/=\$NODEID\+?(?=0x|\d)/gi, '='), 'latin1');
    const plain = (direction) => (pdo) => ({
        direction,
        canId: pdo.cobId,
        type: pdo.transmissionType,
        inhibit: pdo.inhibitTime || 0,
        timer: pdo.eventTime || 0,
        entries: pdo.dataObjects.map((entry) => `${entry.index}:${entry.subIndex ?? 0}`),
    });
    try {
        const eds = Eds.fromFile(edsFile);
        return [...eds.getReceivePdos().map(plain('receive')), ...eds.getTransmitPdos().map(plain('transmit'))];
    } catch (error) {
        return error.message;
    }
}

let failed = false;
let compared = 0;
let pdos = 0;
// Compares the PDOs of an EDS.
function comparePdos(file, edsFile, eds) {
    const layout = JSON.parse(run('xddinfo', '--pdos', '--json', edsFile).stdout);
    const wanted = pdosOfLayout(layout.pdos, eds);
    const got = pdosOfStack(edsFile);
    if (typeof got === 'string') {
        console.log(`${path.basename(file)}: the stack computes no PDOs: ${got}`);
        return;
    }
    for (const pdo of wanted.filter((one) => one.entries.length > 0)) {
        const same = got.find((other) => other.direction === pdo.direction && other.canId === pdo.canId);
        // It takes all entries of a mapping, whatever their number in sub-index 0.
        same?.entries.splice(pdo.entries.length);
        pdos += 1;
        try {
            assert.deepStrictEqual(same, pdo);
        } catch (error) {
            failed = true;
            console.error(`${file}: ${error.message}`);
        }
    }
}

const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'eds-'));
const forms = [[], ['--dcf', '--node-id', '5']];
for (const [file, options] of files.flatMap((name) => forms.map((form) => [name, form]))) {
    const edsFile = path.join(folder, 'file.eds');
    const report = run('xdd2eds', '--verbose', ...options, '-o', edsFile, file).stderr;
    const model = JSON.parse(run('xddinfo', '--json', file).stdout);
    const eds = Eds.fromFile(edsFile);
    let equal = 0;
    let told = 0;
    const compare = (name, wanted, got) => {
        const differences = Object.keys(wanted).filter((key) => wanted[key] !== got?.[key]);
        compared += 1;
        if (differences.length === 0) {
            equal += 1;
        } else if (report.includes(` ${name}: `)) {
            told += 1;
        } else {
            failed = true;
            differences.forEach((key) => console.error(`${file}: ${name}: ${key} ${got?.[key]} instead of ${wanted[key]}`));
        }
    };
    for (const object of model.networkProfile.objects) {
        const name = object.address;
        const loaded = eds.getEntry(object.index);
        if (object.objectType === 8 || object.objectType === 9) {
            const array = object.objectType === ARRAY ? object.dataType : 0;
            compare(name, { name: object.name, type: undefined }, loaded && { name: loaded.parameterName, type: loaded.dataType });
            for (const entry of object.subObjects) {
                const sub = loaded?.at(entry.subIndex);
                compare(entry.address, expected(entry, array), sub && found(sub));
            }
        } else {
            compare(name, expected(object, 0), loaded && found(loaded));
        }
    }
    if (options.length === 0) {
        comparePdos(file, edsFile, eds);
    }
    console.log(`${path.basename(file)} ${options.join(' ')}: ${equal} entries equal, ${told} as the report says`);
}
fs.rmSync(folder, { recursive: true });
console.log(`${compared} entries and ${pdos} PDOs compared`);
process.exit(failed || compared === 0 ? 1 : 0);
