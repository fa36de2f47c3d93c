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

// Values of the first picture of each name: the first and the last one, and one under a point of the picture.
const values = {
  "Tone response and gamma": {
    first: "2.0 %: light 0.02 %, target 0.02 %, gamma 2.20",
    last: "98.0 %: light 95.87 %, target 95.74 %, gamma 2.13",
    at: [367.7, 300],
    there: "49.0 %: light 20.85 %, target 20.84 %, gamma 2.20",
  },
  "Colour differences of the patches": {
    first: "Patches 1 to 4: ΔE00 0.00, 0.00, 0.01, 0.01",
    last: "Patches 96 to 100: ΔE00 0.01, 0.02, 0.05, 0.03, 0.06",
    at: [368, 200],
    there: "Patches 55 to 59: ΔE00 0.00, 0.02, 0.00, 0.01, 0.01",
  },
  "Look-up tables of the monitor": {
    first: "Red: 256 entries, greatest deviation from the diagonal 0.30 % at 35.7 % of the input",
    last: "100.0 %: Red 1.0000 Green 1.0000 Blue 1.0000",
    at: [72, 300],
    there: "0.0 %: Red 0.0000 Green 0.0000 Blue 0.0000",
  },
  "Uniformity": { first: "Entry 1: 92", last: "Entry 25: 92", at: [188, 156], there: "Entry 13: 100" },
};

async function expectValuesOf(page, name, { first, last, at, there }, expect) {
  const figure = page.locator(`.picture:has(svg > title:text-matches("^${name}:"))`).first();
  const svg = figure.locator("svg");
  const shown = () => figure.locator("output").textContent();
  await svg.focus();
  await page.keyboard.press("ArrowRight");
  expect(await shown() === first, `${name}: the first value is "${await shown()}", not "${first}"`);
  await page.keyboard.press("ArrowLeft");
  expect(await shown() === last, `${name}: the last value is "${await shown()}", not "${last}"`);
  const { width } = await svg.boundingBox();
  const scale = width / await svg.evaluate((element) => element.viewBox.baseVal.width);
  await svg.hover({ position: { x: at[0] * scale, y: at[1] * scale } });  // waits until nothing moves
  expect(await shown() === there, `${name}: the pointer shows "${await shown()}", not "${there}"`);
}

export async function expectKeyboard(page, expect) {
  await expectSkipLink(page, expect);
  await expectSwitch(page, expect);
  await expectValues(page, expect);
  for (const [name, wanted] of Object.entries(values)) {
    await expectValuesOf(page, name, wanted, expect);
  }
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
