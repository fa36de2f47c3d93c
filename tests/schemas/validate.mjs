// validate.mjs SCHEMAS MODULES <DOCUMENTS: tries the schemas of that folder with ajv, which is in the other one.
//
// Each line of standard input is a document that its schema must accept. With one fault, in each place of it that can
// have one, it must be refused; and so must be each document of faults.json.
import { createRequire } from "node:module";
import { readFileSync } from "node:fs";
import { fileURLToPath } from "node:url";

const [schemas, modules] = process.argv.slice(2);
const require = createRequire(`${modules}/`);
const Ajv = require("ajv/dist/2020.js");
const ajv = new Ajv({ strict: true });
const validators = new Map();
let failures = 0;

function validatorOf(record) {
  if (!validators.has(record)) {
    const text = readFileSync(`${schemas}/${record}.schema.json`, "utf8");
    validators.set(record, ajv.compile(JSON.parse(text)));
  }
  return validators.get(record);
}

function fail(message) {
  failures += 1;
  console.error(message);
}

function expectAccepted({ record, name, document }) {
  const validate = validatorOf(record);
  if (!validate(document)) {
    fail(`${record}, ${name}: refused: ${ajv.errorsText(validate.errors)}`);
  }
}

function expectRefused(record, document, fault) {
  if (validatorOf(record)(document)) {
    fail(`${record}: accepted: ${fault}`);
  }
}

function wrongValues(value) {
  switch (typeof value) {
    case "string":
      return [1, null];
    case "number":
      return ["1", 1e10, -1e10];
    case "boolean":
      return ["true", 1];
    default:
      return ["true", Array.isArray(value) ? {} : []];
  }
}

// Puts wrong values in the place of a value, and the value back.
function tryWrongValues(record, document, parent, key, path) {
  const value = parent[key];
  for (const each of wrongValues(value)) {
    parent[key] = each;
    expectRefused(record, document, `${path}: ${JSON.stringify(each)}`);
  }
  parent[key] = value;
}

function tryUnknownKey(record, document, object, path) {
  object.unknown = 1;
  expectRefused(record, document, `${path}.unknown`);
  delete object.unknown;
}

function tryFaults(record, document, value, path) {
  if (!Array.isArray(value)) {
    tryUnknownKey(record, document, value, path);
  }
  for (const key of Object.keys(value).slice(0, 40)) {
    tryWrongValues(record, document, value, key, `${path}.${key}`);
    if (typeof value[key] === "object") {
      tryFaults(record, document, value[key], `${path}.${key}`);
    }
  }
}

const lines = readFileSync(0, "utf8").split("\n").filter((line) => line !== "");
for (const line of lines) {
  const entry = JSON.parse(line);
  expectAccepted(entry);
  tryFaults(entry.record, entry.document, entry.document, "document");
}
const faults = fileURLToPath(new URL("faults.json", import.meta.url));
for (const { record, document, fault } of JSON.parse(readFileSync(faults, "utf8"))) {
  expectRefused(record, document, fault);
}
console.log(`schemas: ${lines.length} documents of ${validators.size} records tried, ${failures} failures`);
process.exit(failures === 0 && lines.length > 0 ? 0 : 1);
