// Keys that are clicked, touched with several fingers, or typed: each is pressed, held after a while, and released, as
// on the telephone. A key that two fingers or a finger and the keyboard are on is released with the last of them.

const HOLD_AFTER = 600; // milliseconds
const TYPED = {ArrowUp: "UP", ArrowDown: "DOWN", ArrowLeft: "LEFT", ArrowRight: "RIGHT", Enter: "OK", Backspace: "LEFT",
  Delete: "CLEAR"};

export class Keys {
  #root;
  #tell;
  #down = new Map(); // the key of each finger and each key of the keyboard
  #timers = new Map(); // of each key that is down

  /// Calls tell(key, state) with "press", "hold" and "release" for the buttons below an element, and for the keyboard.
  constructor(root, tell) {
    this.#root = root;
    this.#tell = tell;
    root.addEventListener("pointerdown", (event) => this.#touch(event));
    for (const kind of ["pointerup", "pointercancel", "lostpointercapture"])
      root.addEventListener(kind, (event) => this.#lift(event.pointerId));
    root.addEventListener("contextmenu", (event) => event.preventDefault()); // a long touch holds the key
    root.addEventListener("click", (event) => this.#click(event));
    document.addEventListener("keydown", (event) => this.#type(event));
    document.addEventListener("keyup", (event) => this.#lift(event.code));
    addEventListener("blur", () => this.releaseAll());
    document.addEventListener("visibilitychange", () => this.releaseAll());
  }

  releaseAll() {
    [...this.#down.keys()].forEach((source) => this.#lift(source));
  }

  #press(source, key) {
    if (this.#down.has(source))
      return;
    this.#down.set(source, key);
    if (this.#timers.has(key))
      return;
    this.#tell(key, "press");
    this.#timers.set(key, setTimeout(() => this.#tell(key, "hold"), HOLD_AFTER));
    this.#mark(key, true);
  }

  #lift(source) {
    const key = this.#down.get(source);
    this.#down.delete(source);
    if (key === undefined || [...this.#down.values()].includes(key))
      return;
    clearTimeout(this.#timers.get(key));
    this.#timers.delete(key);
    this.#tell(key, "release");
    this.#mark(key, false);
  }

  #mark(key, isDown) {
    this.#root.querySelector(`[data-key="${CSS.escape(key)}"]`)?.classList.toggle("down", isDown);
  }

  #touch(event) {
    const key = event.target.closest("[data-key]")?.dataset.key;
    if (!key || event.button !== 0)
      return;
    event.preventDefault(); // the focus stays where it is: Enter is OK
    event.target.setPointerCapture(event.pointerId);
    this.#press(event.pointerId, key);
  }

  /// What an aid for the blind does to a button comes as a click alone.
  #click(event) {
    const key = event.target.closest("[data-key]")?.dataset.key;
    if (!key || event.detail !== 0)
      return;
    this.#press("click", key);
    this.#lift("click");
  }

  #type(event) {
    const key = this.#typed(event);
    if (!key)
      return;
    event.preventDefault();
    if (!event.repeat)
      this.#press(event.code, key);
  }

  /// The key that is meant; null for what belongs to the page, such as Enter on a button that has the focus.
  #typed(event) {
    if (event.ctrlKey || event.altKey || event.metaKey || event.isComposing || event.target.closest("input"))
      return null;
    if (event.key === "Enter" || event.key === " ") {
      const focused = event.target.closest("button, a, summary");
      if (focused)
        return focused.dataset.key || null;
    }
    return /^([0-9*#]|F[1-8])$/.test(event.key) ? event.key : TYPED[event.key] || null;
  }
}
