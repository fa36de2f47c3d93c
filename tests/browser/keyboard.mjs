// What pages do by keyboard. `expect` takes a condition and what is wrong without it.

const pressed = (page) => page.locator('.switch button[aria-pressed="true"]').first().getAttribute("data-plane");
const shown = (page) => page.locator(".plane:visible").first().getAttribute("data-plane");

// The first thing that has the focus leads to the content.
async function expectSkipLink(page, expect) {
  await page.keyboard.press("Tab");
  const focused = page.locator(":focus");
  expect(await focused.getAttribute("class") === "skip", "the first tab stop is not the skip link");
  expect((await focused.boundingBox()).x >= 0, "the skip link cannot be seen while it has the focus");
  await page.keyboard.press("Enter");
  expect(await page.locator("main:focus").count() === 1, "the skip link does not lead to the content");
}

async function expectSwitch(page, expect) {
  const before = await shown(page);
  const other = before === "uv" ? "xy" : "uv";
  await page.locator(`.switch button[data-plane="${other}"]`).first().focus();
  await page.keyboard.press("Enter");
  expect(await shown(page) === other, "the switch does not show the other diagram");
  expect(await pressed(page) === other, "the switch does not say which diagram is shown");
  expect(await page.locator(`.plane[data-plane="${before}"]:visible`).count() === 0, "the switch hides no diagram");
}

// A picture tells its values one after another.
async function expectValues(page, expect) {
  const figure = page.locator(".picture:has(output):visible").first();
  await figure.locator("svg").focus();
  await page.keyboard.press("ArrowRight");
  const first = await figure.locator("output").textContent();
  await page.keyboard.press("ArrowRight");
  const second = await figure.locator("output").textContent();
  expect(first !== "" && second !== "" && first !== second, `arrow keys read "${first}", then "${second}"`);
  await page.keyboard.press("ArrowLeft");
  expect(await figure.locator("output").textContent() === first, "the left arrow does not go back");
}

async function expectPointer(page, expect) {
  const figure = page.locator(".picture:has(output):has(path > title):visible").first();
  await figure.scrollIntoViewIfNeeded();
  const value = figure.locator("path:has(> title)").last();
  await value.dispatchEvent("pointerover");
  const text = await value.locator("title").textContent();
  expect(await figure.locator("output").textContent() === text, "pointing at a value does not show it");
}

export async function expectKeyboard(page, expect) {
  await expectSkipLink(page, expect);
  await expectSwitch(page, expect);
  await expectValues(page, expect);
  await expectPointer(page, expect);
}

// A heading sorts the table, and sorts it the other way when pressed again.
export async function expectSorting(page, expect) {
  const cells = () => page.locator("tbody td:nth-child(9)").allTextContents();
  const heading = page.locator("thead th").nth(8);
  const before = (await cells()).map(Number);
  const rising = [...before].sort((left, right) => left - right);
  await heading.locator("button").focus();
  await page.keyboard.press("Enter");
  expect(`${(await cells()).map(Number)}` === `${rising}`, `sorted: ${await cells()}, not ${rising}`);
  expect(await heading.getAttribute("aria-sort") === "ascending", "the heading does not say that it sorts");
  await page.keyboard.press("Enter");
  expect(`${(await cells()).map(Number)}` === `${rising.reverse()}`, "the second press does not turn the order");
  expect(await heading.getAttribute("aria-sort") === "descending", "the heading does not say that the order is turned");
}
