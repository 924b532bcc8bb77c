// The page: shows what the telephone behind it shows, and hands it what is done here.

import {Channel} from "./channel.js";
import {Glass} from "./glass.js";
import {Keys} from "./keys.js";
import {Speech, spokenLines} from "./speech.js";

const MOST_COMMANDS = 100;
const NAMES = {lines: "Display lines", model: "Model", software: "Software"};

const find = (id) => document.getElementById(id);
const glass = new Glass(find("glass"));
const desktop = new Glass(find("desktop"));
const speech = new Speech(find("spoken"));
let lastCommand = 0;
let isAsking = false;
let hasChanged = false;
let isGone = true;

const channel = new Channel({opened: greet, changed: refresh, closed: part});
const keys = new Keys(find("keys"), (key, state) => work({do: "key", key, state}));

function element(kind, properties = {}, ...children) {
  const made = Object.assign(document.createElement(kind), properties);
  made.append(...children);
  return made;
}

function say(text) {
  if (find("state").textContent !== text)
    find("state").textContent = text;
}

/// Asks, and says what goes wrong.
async function work(command) {
  const answer = await channel.ask(command);
  if (!isGone && answer.error !== "gone")
    say(answer.ok ? "" : answer.reason);
  return answer;
}

// The telephone comes and goes

async function greet() {
  const hello = await channel.ask({do: "hello"});
  if (hello.error === "gone")
    return;
  isGone = false;
  say(hello.ok ? "" : hello.reason);
  find("telephone").classList.remove("gone");
  find("commands").replaceChildren();
  lastCommand = 0;
  if (hello.ok) {
    document.title = hello.program;
    find("program").textContent = hello.program;
    find("telephone").dataset.model = hello.variant.model;
    find("plate").textContent = hello.variant.model === "plain" ? "DisplayAPI" : hello.variant.model.toUpperCase();
    offerFunctionKeys(hello.functionKeys);
    offerVariants(hello.variants || {}, hello.variant);
    offerSteps(hello.steps);
  }
  refresh();
}

function part(reason) {
  isGone = true;
  keys.releaseAll();
  find("telephone").classList.add("gone");
  say(reason === "variant" ? "The telephone begins anew ..." : "The telephone has gone. Waiting for it ...");
}

function offerFunctionKeys(steps) {
  const buttons = [];
  for (let number = 1; number <= 8; ++number) {
    const button = element("button", {type: "button"}, element("small", {textContent: steps[`F${number}`] || ""}), `F${number}`);
    button.dataset.key = `F${number}`;
    buttons.push(button);
  }
  find("functions").replaceChildren(...buttons);
}

function offerVariants(choices, present) {
  find("variants").querySelectorAll("fieldset").forEach((each) => each.remove());
  find("variants").hidden = Object.keys(choices).length === 0;
  for (const [name, values] of Object.entries(choices)) {
    const row = element("fieldset", {className: "choice"}, element("legend", {textContent: NAMES[name] || name}));
    for (const value of values) {
      const button = element("button", {type: "button", textContent: value, onclick: () => work({do: "variant", [name]: value})});
      button.dataset.variant = `${name} ${value}`;
      button.setAttribute("aria-pressed", String(present[name] === value));
      row.append(button);
    }
    find("variants").append(row);
  }
}

function offerSteps(names) {
  find("steps").querySelectorAll("form").forEach((each) => each.remove());
  find("steps").hidden = names.length === 0;
  for (const name of names) {
    const argument = element("input", {ariaLabel: `What goes with ${name}`, autocomplete: "off"});
    const form = element("form", {}, argument, element("button", {textContent: name}));
    form.addEventListener("submit", (event) => {
      event.preventDefault();
      work({do: name, argument: argument.value});
    });
    find("steps").append(form);
  }
}

// What the telephone shows

/// Asks for what is on the screen; what changes meanwhile is asked for behind it.
async function refresh() {
  hasChanged = true;
  if (isAsking)
    return;
  isAsking = true;
  while (hasChanged && !isGone) {
    hasChanged = false;
    show(...await Promise.all([
      channel.ask({do: "pixels", settled: false}), channel.ask({do: "text", settled: false}),
      channel.ask({do: "commands", since: lastCommand}), channel.ask({do: "desktop"})]));
  }
  isAsking = false;
}

function show(pixels, screen, delivered, above) {
  if (pixels.ok)
    glass.show(pixels.rows);
  if (screen.ok && find("text").textContent !== screen.text) {
    find("text").textContent = screen.text;
    speech.show(screen.text);
  }
  for (const id of ["strip", "desktop-text"])
    find(id).hidden = !above.ok; // a telephone need not have a desktop
  if (above.ok) {
    desktop.show(above.rows);
    find("desktop-text").textContent = above.text;
    find("desktop").setAttribute("aria-label", `Desktop: ${spokenLines(above.text).join(", ")}`);
  }
  for (const entry of delivered.commands || [])
    list(entry);
}

function list(entry) {
  lastCommand = Math.max(lastCommand, entry.number);
  const line = element("li", {value: entry.number}, element("b", {textContent: entry.command || "(no text)"}),
    ` ${entry.type} on ${entry.screen || "no screen"}`);
  find("commands").append(line);
  while (find("commands").childElementCount > MOST_COMMANDS)
    find("commands").firstElementChild.remove();
  find("commands").scrollTop = find("commands").scrollHeight;
}
