// load_duckdb.mjs MODULES SQL FOLDER: loads the tables of the folder into DuckDB with the statements of the folder SQL,
// once from CSV, once from JSON Lines, once from Parquet that it wrote of these; and compares with expected.json.
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { pathToFileURL } from "node:url";

const [modules, sql, folder] = process.argv.slice(2);
const { DuckDBInstance } = await import(pathToFileURL(createRequire(`${modules}/`).resolve("@duckdb/node-api")));
const expected = JSON.parse(readFileSync(`${folder}/expected.json`, "utf8"));
let failures = 0;
process.chdir(folder); // the statements name files without a folder

function fail(message) {
  failures += 1;
  console.error(message);
}

async function connect() {
  const connection = await (await DuckDBInstance.create(":memory:")).connect();
  await connection.run(statements("duckdb_functions"));
  return connection;
}

function statements(name) {
  return readFileSync(`${sql}/${name}.sql`, "utf8");
}

async function rowsOf(connection, text) {
  return (await connection.runAndReadAll(text)).getRowsJS();
}

const plain = (value) => (typeof value === "bigint" ? Number(value) : value);

function isNear(found, wanted, tolerance) {
  return typeof found === "number" && typeof wanted === "number"
    ? Math.abs(found - wanted) <= tolerance * Math.max(1, Math.abs(wanted))
    : found === wanted;
}

function isAnswer(found, wanted, tolerance) {
  const areNumbers = typeof found === "number" && typeof wanted === "number";
  return areNumbers ? Math.abs(found - wanted) <= tolerance : found === wanted;
}

// What DuckDB makes of a column: as `profile_of` of expect.py has it.
async function profileOf(connection, table, column, kind) {
  const sum = { text: `sum(length("${column}"))`, number: `sum("${column}")`, none: "0" }[kind];
  const empty = kind === "text" ? `count(*) FILTER ("${column}" = '')` : "0";
  const filled = kind === "text" ? `FILTER ("${column}" <> '')` : "";
  const [row] = await rowsOf(connection, `SELECT count("${column}"), ${empty}, coalesce(${sum}, 0)::DOUBLE,
      min("${column}") ${filled}, max("${column}") FROM ${table}`);
  const [values, emptyTexts, total, least, greatest] = row.map(plain);
  return { values, empty: emptyTexts, sum: total, least, greatest };
}

// CSV has no empty texts: they are null there.
function wantedOf(profile, form) {
  const { kind, ...wanted } = profile;
  return form === "CSV" ? { ...wanted, values: wanted.values - wanted.empty, empty: 0 } : wanted;
}

async function compareColumn(connection, form, table, column, profile) {
  const found = await profileOf(connection, table, column, profile.kind);
  const wanted = wantedOf(profile, form);
  for (const key of Object.keys(wanted)) {
    // the greatest of only empty texts is empty; CSV has none
    const value = form === "CSV" && key === "greatest" && wanted[key] === "" ? null : wanted[key];
    if (!isNear(found[key], value, 1e-12)) {
      fail(`${form}, ${table}.${column}, ${key}: ${found[key]} instead of ${value}`);
    }
  }
}

async function compareTables(connection, form) {
  for (const [table, { rows, columns }] of Object.entries(expected.tables)) {
    const [[count]] = await rowsOf(connection, `SELECT count(*) FROM ${table}`);
    if (Number(count) !== rows) {
      fail(`${form}, ${table}: ${count} rows instead of ${rows}`);
    }
    for (const [column, profile] of Object.entries(columns)) {
      await compareColumn(connection, form, table, column, profile);
    }
  }
}

// Every value of every row: texts with commas, quotation marks and line breaks among them.
async function compareMonitors(connection, form) {
  const rows = await rowsOf(connection, "SELECT * FROM monitors");
  const byFile = new Map(rows.map((row) => [row[0], row.map(plain)]));
  for (const monitor of expected.monitors) {
    const wanted = Object.values(monitor).map((value) => (form === "CSV" && value === "" ? null : value));
    const found = byFile.get(monitor.file);
    if (JSON.stringify(found) !== JSON.stringify(wanted)) {
      fail(`${form}, monitors: ${JSON.stringify(found)} instead of ${JSON.stringify(wanted)}`);
    }
  }
}

async function compareDates(connection, form) {
  for (const [path, count] of Object.entries(expected.dates)) {
    const [table, column] = path.split(".");
    const [[found]] = await rowsOf(connection, `SELECT count(try_cast(${column} AS TIMESTAMP)) FROM ${table}`);
    if (Number(found) !== count) {
      fail(`${form}, ${path}: ${found} can be cast instead of ${count}`);
    }
  }
}

// The statements round to so many digits; what is expected is not rounded.
async function compareAnswers(connection, form) {
  for (const [question, { digits, rows: wanted }] of Object.entries(expected.answers)) {
    const found = (await rowsOf(connection, statements(question))).map((row) => row.map(plain));
    const isSame = found.length === wanted.length && found.every((row, place) => row.length === wanted[place].length &&
        row.every((value, column) => isAnswer(value, wanted[place][column], 0.501 * 10 ** -digits)));
    if (!isSame) {
      fail(`${form}, ${question}: ${JSON.stringify(found)} instead of ${JSON.stringify(wanted)}`);
    }
  }
}

async function compare(connection, form) {
  await compareTables(connection, form);
  await compareMonitors(connection, form);
  await compareDates(connection, form);
  await compareAnswers(connection, form);
}

// The types that DuckDB finds by itself, without being told.
async function compareFoundTypes() {
  const connection = await connect();
  for (const [table, { columns }] of Object.entries(expected.tables)) {
    const found = await rowsOf(connection, `DESCRIBE FROM '${table}.jsonl'`);
    for (const [column, type] of found) {
      const isNumber = type === "BIGINT" || type === "DOUBLE";
      if (columns[column].kind !== "none" && isNumber !== (columns[column].kind === "number")) {
        fail(`${table}.${column}: ${type}, but it is a ${columns[column].kind}`);
      }
    }
  }
}

async function load(form, steps) {
  const connection = await connect();
  for (const step of steps) {
    await connection.run(step);
  }
  await connection.run(statements("visits"));
  await compare(connection, form);
  return connection;
}

await load("CSV", [statements("create_tables"), statements("duckdb_csv")]);
const lines = await load("JSON Lines", [statements("create_tables"), statements("duckdb_jsonl")]);
await lines.run(statements("duckdb_parquet"));
const tables = Object.keys(expected.tables);
await load("Parquet", tables.map((table) => `CREATE TABLE ${table} AS FROM '${table}.parquet'`));
await compareFoundTypes();
console.log(`databases: ${tables.length} tables from CSV, JSON Lines and Parquet, ${failures} failures`);
process.exit(failures === 0 ? 0 : 1);
