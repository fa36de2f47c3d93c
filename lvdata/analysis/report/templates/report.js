"use strict";
(() => {
  const each = (root, selector, act) => root.querySelectorAll(selector).forEach(act);
  document.documentElement.classList.add("has-script");

  // The switch between the diagrams, of all modes at once.
  const showPlane = (plane) => {
    each(document, ".switch button", (button) => button.setAttribute("aria-pressed", button.dataset.plane === plane));
    each(document, ".plane", (figure) => figure.classList.toggle("is-shown", figure.dataset.plane === plane));
  };
  each(document, ".switch button", (button) => button.addEventListener("click", () => showPlane(button.dataset.plane)));

  // Texts for hover are data: a line with the words that all have, with gaps, then for each text a line with the words
  // for the gaps and those that follow, without the ones that are the same as in the text before.
  const spelledOut = (data) => {
    const [form, ...lines] = data.split("\n").map((line) => line.split(" "));
    let own = [];
    return lines.map((line) => {
      if (!line[0]) {
        return "";
      }
      own = line.map((word, index) => word || own[index]);
      const rest = [...own];
      return [...form.map((word) => word || rest.shift()), ...rest].join(" ");
    });
  };
  const addTo = (parent, name) => parent.appendChild(document.createElementNS("http://www.w3.org/2000/svg", name));
  const addHoverCells = (group) => {
    const [left, top, width, height, columns, rows] = group.dataset.grid.split(",").map(Number);
    const [cellWidth, cellHeight] = [width / columns, height / rows];
    group.setAttribute("stroke-width", cellWidth);
    spelledOut(group.dataset.texts).forEach((text, index) => {
      if (text) {
        const [x, y] = [left + (index % columns + 0.5) * cellWidth, top + Math.floor(index / columns) * cellHeight];
        const cell = addTo(group, "path");
        cell.setAttribute("d", `M${x} ${y}v${cellHeight}`);
        addTo(cell, "title").textContent = text;
      }
    });
  };
  each(document, ".lv-hover", addHoverCells);

  // Values of a picture: under the pointer, or by the arrow keys while the picture has the focus.
  const valuesOf = (svg) => [...svg.querySelectorAll("title")].map((title) => title.parentNode).filter((e) => e !== svg);
  const textOf = (element) => [...element.children].find((child) => child.tagName === "title").textContent;
  const makeReadable = (figure) => {
    const svg = figure.querySelector("svg");
    const values = svg ? valuesOf(svg) : [];
    if (values.length === 0) {
      return;
    }
    const readout = figure.appendChild(document.createElement("output"));
    readout.className = "readout";
    let current = -1;
    const show = (index) => {
      current = index;
      readout.textContent = index >= 0 ? textOf(values[index]) : "";
    };
    const hint = () => {
      readout.textContent = `Arrow keys: read ${values.length} values`;
    };
    const steps = { ArrowRight: 1, ArrowDown: 1, ArrowLeft: -1, ArrowUp: -1 };
    svg.setAttribute("tabindex", "0");
    svg.addEventListener("focus", () => (current < 0 ? hint() : show(current)));
    svg.addEventListener("blur", () => show(-1));
    svg.addEventListener("keydown", (event) => {
      if (event.key in steps) {
        event.preventDefault();
        show((Math.max(current, steps[event.key] > 0 ? -1 : 0) + steps[event.key] + values.length) % values.length);
      }
    });
    svg.addEventListener("pointerover", (event) => {
      const index = values.findIndex((value) => value.contains(event.target));
      if (index >= 0) {
        show(index);
      }
    });
  };
  each(document, ".picture", makeReadable);
})();
