"use strict";
(() => {
  const all = (selector, within = document) => Array.from(within.querySelectorAll(selector));

  // Sorting: a table's headings become buttons. Rows without a value stay behind
  // those that have one, whichever way the table is sorted.
  const collator = new Intl.Collator("en", { numeric: true, sensitivity: "base" });
  const keyOf = (row, column, kind) => {
    const cell = row.cells[column];
    if (kind === "name") {
      return cell.textContent;
    }
    return cell.dataset.value === undefined ? null : Number(cell.dataset.value);
  };
  const compare = (one, other) =>
    typeof one === "string" ? collator.compare(one, other) : one - other;

  const sortBy = (heading) => {
    const ascending = heading.getAttribute("aria-sort") !== "ascending";
    for (const other of heading.parentElement.cells) {
      other.removeAttribute("aria-sort");
    }
    heading.setAttribute("aria-sort", ascending ? "ascending" : "descending");
    const body = heading.closest("table").tBodies[0];
    const keyed = Array.from(body.rows, (row) => ({
      row,
      key: keyOf(row, heading.cellIndex, heading.dataset.sort),
    }));
    keyed.sort((one, other) => {
      if (one.key === null || other.key === null) {
        return (one.key === null) - (other.key === null);
      }
      return ascending ? compare(one.key, other.key) : compare(other.key, one.key);
    });
    body.append(...keyed.map(({ row }) => row));
  };

  for (const heading of all("th[data-sort]")) {
    const button = document.createElement("button");
    button.type = "button";
    button.textContent = heading.firstChild.textContent.trim();
    button.addEventListener("click", () => sortBy(heading));
    heading.firstChild.replaceWith(button);
  }

  // Searching: what has all of the words stays, and of the rest only what holds it.
  const search = document.getElementById("search");
  const found = document.getElementById("found");
  const itemSelector = "[data-find], .sensor, .silent";
  let texts = null;
  const readTexts = () =>
    all(itemSelector).map((item) => {
      const kind = item.closest(".kind");
      const heading = kind === null ? "" : kind.querySelector("h4").firstChild.textContent;
      return { item, text: (heading + " " + item.textContent).toLowerCase() };
    });

  const show = () => {
    texts = texts || readTexts();
    const words = search.value.toLowerCase().split(/\s+/).filter(Boolean);
    let count = 0;
    for (const { item, text } of texts) {
      const matches = words.every((word) => text.includes(word));
      item.hidden = !matches;
      count += matches ? 1 : 0;
    }
    for (const group of all("[data-group]")) {
      group.hidden =
        words.length > 0 &&
        !all(itemSelector, group).some((item) => !item.hidden);
    }
    found.textContent = words.length > 0 ? count + " of " + texts.length : "";
  };
  search.addEventListener("input", show);

  const names = document.getElementById("names");
  names.addEventListener("click", () => {
    const open = names.getAttribute("aria-pressed") !== "true";
    names.setAttribute("aria-pressed", String(open));
    for (const details of all("details")) {
      details.open = open;
    }
  });

  const tools = document.getElementById("tools");
  tools.addEventListener("submit", (event) => event.preventDefault());
  tools.hidden = false;
  // A reload may bring back what was searched for.
  if (search.value !== "") {
    show();
  }
})();
