// open_pages.mjs MODULES PAGES [SCREENSHOTS]: opens each page of the folder PAGES in Chromium and fails when one
// complains, asks for anything, hides something from readers without scripts, breaks a rule of accessibility, does not
// fit a screen or prints badly. With a third folder it keeps pictures of studio.html there.
import { createRequire } from "node:module";
import { readFileSync, readdirSync } from "node:fs";
import { pathToFileURL } from "node:url";
import { expectKeyboard, expectSorting } from "./keyboard.mjs";

const [modules, pages, screenshots] = process.argv.slice(2);
const require = createRequire(`${modules}/`);
const { chromium } = require("playwright-core");
const axe = readFileSync(require.resolve("axe-core/axe.min.js"), "utf8");
const widths = [360, 768, 1440];
let failures = 0;

function expect(condition, message) {
  if (!condition) {
    failures += 1;
    console.error(`browser: ${message}`);
  }
}

const addressOf = (name) => pathToFileURL(`${pages}/${name}`).href;

// Opens a page and watches what it says and asks for.
async function opened(context, name) {
  const page = await context.newPage();
  page.on("console", (message) => {
    expect(!["error", "warning"].includes(message.type()), `${name}: console: ${message.text()}`);
  });
  page.on("pageerror", (error) => expect(false, `${name}: script: ${error.message}`));
  page.on("dialog", async (dialog) => {
    expect(false, `${name}: a dialog opened: ${dialog.message()}`);
    await dialog.dismiss();
  });
  page.on("request", (request) => {
    const isOwn = request.url() === addressOf(name) || request.url().startsWith("data:");
    expect(isOwn, `${name}: asks for ${request.url()}`);
  });
  await page.goto(addressOf(name));
  return page;
}

async function expectWidths(page, name) {
  for (const width of widths) {
    await page.setViewportSize({ width, height: 900 });
    const wide = await page.evaluate(() => document.scrollingElement.scrollWidth);
    expect(wide <= width, `${name}: ${wide} pixels wide on a screen of ${width}`);
  }
}

// In the dark only colours differ, which are the same on all pages.
const darkToo = new Set(["studio.html", "three-years.html", "fleet.html"]);
const rulesIn = {
  light: { resultTypes: ["violations"], preload: false },
  dark: { resultTypes: ["violations"], preload: false, runOnly: ["color-contrast"] },
};

async function expectAccessible(page, name) {
  for (const colorScheme of darkToo.has(name) ? ["light", "dark"] : ["light"]) {
    await page.emulateMedia({ colorScheme });
    // Not by an element, which the page's policy would refuse.
    await page.evaluate(axe);
    const { violations } = await page.evaluate((options) => globalThis.axe.run(document, options), rulesIn[colorScheme]);
    for (const { id, help, nodes } of violations) {
      expect(false, `${name}, ${colorScheme}: ${id}: ${help}: ${nodes.length} times, first ${nodes[0].html.slice(0, 300)}`
        + ` ${nodes[0].failureSummary}`);
    }
  }
}

// Most pages of paper that each may take; the rows of tables are folded.
const mostPaper = { "fleet.html": 2, "bare.html": 3 };

async function expectPaper(page, name) {
  const pdf = await page.pdf({ format: "A4" });
  const count = (pdf.toString("latin1").match(/\/Type\s*\/Page\b/g) ?? []).length;
  const most = mostPaper[name] ?? 24;
  expect(count > 0 && count <= most, `${name}: prints on ${count} pages, at most ${most} are expected`);
  return count;
}

// Without scripts everything is there: what scripts hide or fold is shown, and tables can be unfolded.
async function expectWithoutScripts(context, name) {
  const page = await opened(context, name);
  const hidden = await page.locator("main .picture, main table, main h2, main h3, main p, main dl").evaluateAll(
    (elements) => elements.filter((element) => !element.closest("details:not([open])")
      && element.getClientRects().length === 0).map((element) => element.outerHTML.slice(0, 120)),
  );
  expect(hidden.length === 0, `${name}, no scripts: hidden: ${hidden[0]}`);
  expect(await page.locator("button:visible").count() === 0, `${name}, no scripts: a button that does nothing`);
  const folded = await page.locator("main details").count();
  if (folded > 0) {
    await page.locator("main details > summary").first().click();
    expect(await page.locator("main details[open]").count() === 1, `${name}, no scripts: cannot be unfolded`);
  }
  await page.close();
}

async function takeScreenshots(page) {
  await page.emulateMedia({ colorScheme: "light" });
  for (const width of widths) {
    await page.setViewportSize({ width, height: Math.round(Math.max(width * 0.75, 720)) });
    await page.evaluate(() => globalThis.scrollTo(0, 0));
    await page.screenshot({ path: `${screenshots}/studio-${width}.png` });
  }
}

const browser = await chromium.launch({ executablePath: "/usr/bin/chromium", args: ["--no-sandbox"] });
const plain = await browser.newContext();
const scriptless = await browser.newContext({ javaScriptEnabled: false });
const names = readdirSync(pages).filter((name) => name.endsWith(".html")).sort();
expect(names.length > 0, "there are no pages");

async function expectPage(name) {
  const started = Date.now();
  const report = (condition, message) => expect(condition, `${name}: ${message}`);
  const page = await opened(plain, name);
  await expectWidths(page, name);
  await expectAccessible(page, name);
  const paper = await expectPaper(page, name);
  if (name === "studio.html") {
    await expectKeyboard(page, report);
  }
  if (name === "fleet.html") {
    await expectSorting(page, report);
  }
  await page.close();
  await expectWithoutScripts(scriptless, name);
  console.log(`browser: ${name}: ${paper} pages of paper, ${Date.now() - started} ms`);
}

// Two at a time, each on a processor.
const waiting = [...names];
async function work() {
  while (waiting.length > 0) {
    await expectPage(waiting.shift());
  }
}
await Promise.all([work(), work()]);
if (screenshots) {
  await takeScreenshots(await opened(plain, "studio.html"));
}
await browser.close();
console.log(`browser: ${names.length} pages opened, ${failures} failures`);
process.exit(failures === 0 ? 0 : 1);
