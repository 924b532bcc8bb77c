// The control channel over a web socket: commands go out, one a message; each is answered in its turn. When the telephone
// has gone, the channel waits for it.

const RETRIES = [100, 200, 300, 500, 1000]; // milliseconds, the last again and again
const GONE = {ok: false, error: "gone"};

export class Channel {
  #listener;
  #socket = null;
  #waiting = []; // what is to be done with the answers, in their order
  #failures = 0;

  /// The listener has opened(), changed(), and closed(reason), with "variant", "ended" or nothing.
  constructor(listener) {
    this.#listener = listener;
    this.#connect();
  }

  /// The answer; while the telephone is not there, one with the error "gone".
  ask(command) {
    if (this.#socket.readyState !== WebSocket.OPEN)
      return Promise.resolve(GONE);
    return new Promise((resolve) => {
      this.#waiting.push(resolve);
      this.#socket.send(JSON.stringify(command));
    });
  }

  #connect() {
    this.#socket = new WebSocket(`ws://${location.host}/`, "telephone");
    this.#socket.onopen = () => {
      this.#failures = 0;
      this.#listener.opened();
    };
    this.#socket.onmessage = (message) => {
      const told = JSON.parse(message.data);
      if (told.event)
        this.#listener.changed();
      else
        this.#waiting.shift()?.(told);
    };
    this.#socket.onclose = (event) => {
      this.#waiting.splice(0).forEach((resolve) => resolve(GONE));
      setTimeout(() => this.#connect(), RETRIES[Math.min(this.#failures, RETRIES.length - 1)]);
      if (this.#failures++ === 0)
        this.#listener.closed(event.reason);
    };
  }
}
