// parse-sql.js PARSER STATEMENTS SCRIPT...: says which statements the parser does not take, of a file with one on each
// line and of scripts with batches, and ends with 1 where there is one.
//
// The parser takes a row of words that it does not know for the call of a procedure, so a statement counts as taken only
// where it comes out as one of a known kind. It knows no batches: scripts are cut at GO, as a server's tools do. And it
// knows none of the statements on roles, rights and logins; these must be of the forms below, and their tables must be
// among those that the scripts create.
'use strict';

const fs = require('fs');

const [parserFile, statementsFile, ...scripts] = process.argv.slice(2);
const {Parser} = require(parserFile);

const windowKinds = ['select', 'insert', 'update', 'delete', 'alter'];
const scriptKinds = ['insert', 'create', 'alter', 'use'];
const name = String.raw`(?:dbo\.)?(\[[^\]]+\]|\w+)`;
const permissions = '(?:SELECT|INSERT|UPDATE|DELETE|ALTER)';
const rights = [
    /^IF DATABASE_PRINCIPAL_ID\('(\w+)'\) IS NULL CREATE ROLE \1$/,
    new RegExp(`^GRANT ${permissions}(?:, ${permissions})* ON (?<table>${name}) TO \\w+$`),
    /^IF SUSER_ID\('(\w+)'\) IS NOT NULL ALTER LOGIN \1 WITH DEFAULT_LANGUAGE = \w+$/,
    /^IF SUSER_ID\('(\w+)'\) IS NOT NULL AND USER_ID\('\1'\) IS NULL CREATE USER \1 FOR LOGIN \1$/,
    /^IF USER_ID\('(\w+)'\) IS NOT NULL EXEC sp_addrolemember '\w+', '\1'$/,
];

// What a statement is, and what it does where an IF stands before it.
function kindsOf(statement) {
    const trees = [new Parser().astify(statement, {database: 'transactsql'})].flat();
    return trees.flatMap((tree) => (tree.type === 'if' ? [tree.if_expr].flat().map((inner) => inner.ast?.type) : [tree.type]));
}

// Null where the statement is taken.
function refusal(statement, kinds) {
    try {
        const wrong = kindsOf(statement).filter((kind) => !kinds.includes(kind));
        return wrong.length === 0 ? null : `not a statement of a known kind: ${wrong}`;
    } catch (error) {
        return error.message.split('\n')[0].slice(0, 200);
    }
}

function statementsOf(script) {
    const text = fs.readFileSync(script, 'utf8').replace(/--.*$/gm, '');
    const batches = text.split(/^GO$/m);
    return batches.flatMap((batch) => batch.split(';')).map((one) => one.trim().replace(/\s+/g, ' ')).filter(Boolean);
}

function plain(table) {
    return table.replace(/^.*\bdbo\./, '').replace(/[[\]]/g, '');
}

function rightsRefusal(statement, tables) {
    const match = rights.map((form) => form.exec(statement)).find(Boolean);
    if (!match) return undefined;
    const table = match.groups?.table;
    return table && !tables.includes(plain(table)) ? `no table ${table}` : null;
}

let refused = 0;
function report(file, statement, why) {
    if (why === null) return;
    refused += 1;
    console.log(`${file}: ${why}\n    ${statement}`);
}

const sent = fs.readFileSync(statementsFile, 'utf8').split('\n').filter(Boolean);
for (const statement of sent) {
    report('windows', statement, refusal(statement, windowKinds));
    // A parser that takes anything would prove nothing.
    for (const broken of [`X${statement}`, `${statement} )`]) {
        if (refusal(broken, windowKinds) === null) report('windows', broken, 'taken though it is broken');
    }
}

const all = scripts.flatMap((script) => statementsOf(script).map((statement) => ({script, statement})));
const tables = all.map(({statement}) => /CREATE TABLE (\S+\.dbo\.\w+|dbo\.\[[^\]]+\]|\S+)/.exec(statement)?.[1])
    .filter(Boolean).map(plain);
for (const {script, statement} of all) {
    const asRight = rightsRefusal(statement, tables);
    report(script, statement, asRight === undefined ? refusal(statement, scriptKinds) : asRight);
}

if (sent.length === 0 || all.length === 0 || tables.length === 0) report('parse-sql', '', 'nothing to parse');
console.log(`${sent.length} statements of the windows, ${all.length} of scripts, ${refused} refused`);
process.exit(refused === 0 ? 0 : 1);
