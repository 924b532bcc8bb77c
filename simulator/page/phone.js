"use strict";

// Works the telephone behind this page: commands of the control channel go out, one a message; each is answered in its
// turn, and {"event": "changed"} says that there is something new to ask for.

const HOLD_AFTER = 600; // milliseconds
const INK = [0x22, 0x2b, 0x1b];
const GLASS = [0xc9, 0xd5, 0xaa];
const KEYBOARD = {ArrowUp: "UP", ArrowDown: "DOWN", ArrowLeft: "LEFT", ArrowRight: "RIGHT", Enter: "OK",
  Backspace: "LEFT", Delete: "CLEAR"};

const glass = document.getElementById("glass");
const text = document.getElementById("text");
const state = document.getElementById("state");
const commands = document.getElementById("commands");
const MOST_COMMANDS = 100;

let socket = null;
let waiting = []; // what is to be done with the answers, in their order
let lastCommand = 0;
let isAsking = false;
let hasChanged = false;

function ask(command) {
  return new Promise((resolve) => {
    if (!socket || socket.readyState !== WebSocket.OPEN)
      return;
    waiting.push(resolve);
    socket.send(JSON.stringify(command));
  });
}

function connect() {
  socket = new WebSocket(`ws://${location.host}/`, "telephone");
  socket.onopen = () => {
    waiting = [];
    state.textContent = "";
    ask({do: "hello"}).then(greet);
  };
  socket.onmessage = (message) => {
    const told = JSON.parse(message.data);
    if (told.event)
      refresh();
    else if (waiting.length > 0)
      waiting.shift()(told);
  };
  socket.onclose = () => {
    state.textContent = "The telephone has gone. Waiting for it ...";
    setTimeout(connect, 1000);
  };
}

function greet(hello) {
  document.title = hello.program || "Telephone";
  const steps = new Map((hello.steps || []).map((step) => [step.key, step.name]));
  const functions = document.getElementById("functions");
  functions.replaceChildren();
  for (let number = 1; number <= 8; ++number) {
    const button = document.createElement("button");
    button.dataset.key = `F${number}`;
    button.textContent = `F${number}`;
    const label = document.createElement("small");
    label.textContent = steps.get(`F${number}`) || "";
    button.append(label);
    functions.append(button);
  }
}

// Asks for what is on the screen; what changes meanwhile is asked for behind it.
async function refresh() {
  hasChanged = true;
  if (isAsking)
    return;
  isAsking = true;
  while (hasChanged) {
    hasChanged = false;
    const [pixels, screen, delivered] = await Promise.all([
      ask({do: "pixels", settled: false}), ask({do: "text", settled: false}), ask({do: "commands", since: lastCommand})]);
    if (pixels.ok)
      paint(pixels.rows);
    if (screen.ok && text.textContent !== screen.text)
      text.textContent = screen.text;
    for (const entry of delivered.commands || [])
      list(entry);
  }
  isAsking = false;
}

function paint(rows) {
  glass.width = rows[0].length;
  glass.height = rows.length;
  const context = glass.getContext("2d");
  const image = context.createImageData(glass.width, glass.height);
  rows.forEach((row, y) => {
    for (let x = 0; x < row.length; ++x) {
      const colour = row[x] === "#" ? INK : GLASS;
      image.data.set([...colour, 0xff], 4 * (y * glass.width + x));
    }
  });
  context.putImageData(image, 0, 0);
}

function list(entry) {
  lastCommand = Math.max(lastCommand, entry.number);
  const line = document.createElement("li");
  line.value = entry.number;
  line.textContent = `${entry.command || entry.type || "(none)"} on ${entry.screen || "no screen"}`;
  commands.append(line);
  while (commands.childElementCount > MOST_COMMANDS)
    commands.firstElementChild.remove();
  commands.scrollTop = commands.scrollHeight;
}

// A key is pressed, held after a while, and released, as on the telephone.

const held = new Map(); // the timer of each key that is down

function press(key) {
  if (held.has(key))
    return;
  ask({do: "key", key, state: "press"});
  held.set(key, setTimeout(() => ask({do: "key", key, state: "hold"}), HOLD_AFTER));
  mark(key, true);
}

function release(key) {
  if (!held.has(key))
    return;
  clearTimeout(held.get(key));
  held.delete(key);
  ask({do: "key", key, state: "release"});
  mark(key, false);
}

function mark(key, isPressed) {
  document.querySelector(`[data-key="${CSS.escape(key)}"]`)?.classList.toggle("pressed", isPressed);
}

function keyOf(event) {
  if (event.ctrlKey || event.altKey || event.metaKey)
    return null;
  if (/^([0-9*#]|F[1-8])$/.test(event.key))
    return event.key;
  return KEYBOARD[event.key] || null;
}

document.getElementById("keys").addEventListener("pointerdown", (event) => {
  const button = event.target.closest("button");
  if (!button || event.button !== 0)
    return;
  button.setPointerCapture(event.pointerId);
  press(button.dataset.key);
});
for (const kind of ["pointerup", "pointercancel"]) {
  document.getElementById("keys").addEventListener(kind, (event) => {
    const button = event.target.closest("button");
    if (button)
      release(button.dataset.key);
  });
}
document.addEventListener("keydown", (event) => {
  const key = keyOf(event);
  if (!key)
    return;
  event.preventDefault();
  if (!event.repeat)
    press(key);
});
document.addEventListener("keyup", (event) => {
  const key = keyOf(event);
  if (key)
    release(key);
});
window.addEventListener("blur", () => [...held.keys()].forEach(release));

connect();
