// Shows the rows that hold every word that is looked for, and that fit the choices.
const form = document.querySelector("form");
const rows = [...document.querySelectorAll("#functions tbody tr")];
const count = document.getElementById("count");

function find() {
  const words = form.words.value.toLowerCase().split(/\s+/);
  const choices = ["transform", "precision", "length"].filter((name) => form[name].value);
  let shown = 0;
  for (const row of rows) {
    const text = row.dataset.words + " " + row.cells[0].textContent.toLowerCase();
    row.hidden = !(words.every((word) => text.includes(word)) &&
      choices.every((name) => row.dataset[name] === form[name].value));
    shown += row.hidden ? 0 : 1;
  }
  count.textContent = shown + " of " + rows.length + " functions";
}

form.hidden = false;
form.addEventListener("input", find);
form.addEventListener("submit", (event) => event.preventDefault());
find();
