// What a screen reader says of a screen text: the lines that are new, once the screen has come to rest, and not the whole
// at each change. A clock or the time of a call that goes on is no news.

const REST = 250; // milliseconds
const UNSPOKEN = /^(object|name|subitem|endsubitem|end)$/;

/// The lines of a screen text as a person would read them.
export function spokenLines(text) {
  const lines = [];
  for (const line of text.split("\n")) {
    const colon = line.indexOf(":");
    const key = line.slice(0, colon);
    const value = line.slice(colon + 1).trim();
    if (value && !UNSPOKEN.test(key))
      lines.push(key.startsWith("icon") ? value.replace(/([a-z])([A-Z])/g, (_, end, begin) => `${end} ${begin.toLowerCase()}`) : value);
  }
  return lines;
}

export class Speech {
  #element;
  #last = [];
  #timer = 0;

  constructor(element) {
    this.#element = element;
  }

  show(text) {
    clearTimeout(this.#timer);
    this.#timer = setTimeout(() => this.#say(spokenLines(text)), REST);
  }

  #say(lines) {
    const withoutTimes = (line) => line.replace(/\d+:\d\d/g, ":");
    const known = new Set(this.#last.map(withoutTimes));
    const news = lines.filter((line) => !known.has(withoutTimes(line)));
    this.#last = lines;
    if (news.length > 0)
      this.#element.textContent = news.join(", ");
  }
}
