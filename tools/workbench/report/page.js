// The search of all tables, tables opened together, all tables open on paper, and the current section in the navigation.
"use strict";
(() => {
  const search = document.getElementById("search");
  const found = document.getElementById("found");
  const invitation = found.textContent;
  const tables = [...document.querySelectorAll("details.data")].map(element => ({
    element,
    name: element.querySelector("h3").textContent.toLowerCase(),
    count: element.querySelector(".count"),
    total: element.querySelector(".count").textContent,
    rows: [...element.querySelectorAll("tbody tr")].map(row =>
      ({row, text: [...row.cells].map(cell => cell.textContent).join("\t").toLowerCase()})),
  }));
  // A number is found as a whole: "tray 2" does not find 257.
  function patternOf(word) {
    const text = word.replace(/[.*+?^${}()|[\]\\]/g, "\\$&");
    return new RegExp((/^\d/.test(word) ? "(?<!\\d)" : "") + text + (/\d$/.test(word) ? "(?!\\d)" : ""));
  }
  const hasAll = (text, patterns) => patterns.every(pattern => pattern.test(text));
  const counted = (number, noun) => `${number} ${noun}${number === 1 ? "" : "s"}`;
  let openBefore = null; // the tables that were open before the search

  // A row is shown when it, or the name of its table, has all words.
  function filter() {
    const words = search.value.toLowerCase().split(/\s+/).filter(Boolean).map(patternOf);
    const searching = words.length > 0;
    if (searching && openBefore === null) openBefore = tables.map(table => table.element.open);
    let rows = 0;
    let matches = 0;
    tables.forEach((table, index) => {
      const isNamed = hasAll(table.name, words);
      let shown = 0;
      for (const {row, text} of table.rows) {
        row.hidden = !isNamed && !hasAll(text, words);
        shown += row.hidden ? 0 : 1;
      }
      table.element.hidden = searching && shown === 0;
      table.count.textContent = searching ? `${shown} of ${table.total}` : table.total;
      if (searching) table.element.open = shown > 0;
      else if (openBefore !== null) table.element.open = openBefore[index];
      rows += shown;
      matches += shown > 0 ? 1 : 0;
    });
    if (!searching) openBefore = null;
    document.body.classList.toggle("searching", searching);
    for (const section of document.querySelectorAll("main > section"))
      section.classList.toggle("searched", section.querySelector("details.data:not([hidden])") !== null);
    found.textContent = !searching ? invitation
      : rows === 0 ? "No row matches" : `${counted(rows, "row")} in ${counted(matches, "table")}`;
  }
  search.addEventListener("input", filter);
  document.addEventListener("keydown", event => {
    if (event.key === "/" && document.activeElement !== search) {
      event.preventDefault();
      search.focus();
    } else if (event.key === "Escape" && search.value !== "") {
      search.value = "";
      filter();
    }
  });

  for (const button of document.querySelectorAll("button[data-open]"))
    button.addEventListener("click", () => {
      for (const details of button.closest("section").querySelectorAll("details"))
        details.open = button.dataset.open === "yes";
    });

  let closed = []; // tables that are opened for printing
  window.addEventListener("beforeprint", () => {
    closed = [...document.querySelectorAll("details:not([open])")];
    for (const details of closed) details.open = true;
  });
  window.addEventListener("afterprint", () => {
    for (const details of closed) details.open = false;
    closed = [];
  });

  const links = [...document.querySelectorAll("nav a")];
  const observer = new IntersectionObserver(entries => {
    for (const entry of entries)
      if (entry.isIntersecting)
        for (const link of links)
          if (link.hash === "#" + entry.target.id) link.setAttribute("aria-current", "true");
          else link.removeAttribute("aria-current");
  }, {rootMargin: "-10% 0px -80% 0px"});
  for (const section of document.querySelectorAll("main > section")) observer.observe(section);
})();
