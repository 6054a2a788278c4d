#pragma once

namespace zerimo::classroom {

/// What a page can do if scripts run: the overview sorts by its headings, and shows the programs with one kind of note.
/// Everything can be read without it.
inline constexpr const char* PageScript = R"(
'use strict';
const table = document.querySelector('#overview');
const rows = () => [...table.tBodies[0].rows];
const sortBy = (column, head) => {
  const up = head.getAttribute('aria-sort') !== 'ascending';
  const key = row => row.cells[column].dataset.value || row.cells[column].textContent;
  const sorted = rows().sort((a, b) => key(a).localeCompare(key(b), undefined, {numeric: true}));
  table.querySelectorAll('th[aria-sort]').forEach(each => each.removeAttribute('aria-sort'));
  head.setAttribute('aria-sort', up ? 'ascending' : 'descending');
  table.tBodies[0].append(...(up ? sorted : sorted.reverse()));
};
if (table) {
  [...table.tHead.rows[0].cells].forEach((head, column) => {
    const button = document.createElement('button');
    button.textContent = head.textContent;
    button.addEventListener('click', () => sortBy(column, head));
    head.replaceChildren(button);
  });
  const filter = document.querySelector('#filter');
  const notes = new Set(rows().flatMap(row => row.dataset.notes.split('|')).filter(note => note));
  const choice = document.createElement('select');
  choice.append(new Option(filter.dataset.all, ''), ...[...notes].sort().map(note => new Option(note, note)));
  choice.addEventListener('change', () => rows().forEach(row => {
    row.hidden = choice.value !== '' && !row.dataset.notes.split('|').includes(choice.value);
    const id = row.querySelector('a').getAttribute('href');
    if (id.startsWith('#')) document.querySelector(id).hidden = row.hidden;
  }));
  const label = document.createElement('label');
  label.append(filter.dataset.label + ' ', choice);
  filter.append(label);
}
)";

}  // namespace zerimo::classroom
