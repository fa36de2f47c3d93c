"use strict";
(() => {
  const each = (root, selector, act) => root.querySelectorAll(selector).forEach(act);

  // Tables whose rows can be sorted by a column.
  const keyOf = (row, column) => row.cells[column].textContent.trim();
  const compare = (left, right) => {
    const [a, b] = [parseFloat(left), parseFloat(right)];
    const areNumbers = /^-?[\d.]+$/.test(left) && /^-?[\d.]+$/.test(right);
    return areNumbers ? a - b : left.localeCompare(right, "en", { numeric: true });
  };
  const sortBy = (table, heading, column) => {
    const isRising = heading.getAttribute("aria-sort") !== "ascending";
    each(table, "thead th", (other) => other.removeAttribute("aria-sort"));
    heading.setAttribute("aria-sort", isRising ? "ascending" : "descending");
    const body = table.tBodies[0];
    const rows = [...body.rows].sort((a, b) => compare(keyOf(a, column), keyOf(b, column)));
    body.append(...(isRising ? rows : rows.reverse()));
  };
  each(document, "table.sortable", (table) => each(table, "thead th", (heading, column) => {
    const button = document.createElement("button");
    button.type = "button";
    button.append(...heading.childNodes);
    heading.append(button);
    button.addEventListener("click", () => sortBy(table, heading, column));
  }));
})();
