// The telephone as a program, and peers that speak to it over a plain socket.

import {spawn} from "node:child_process";
import {randomBytes} from "node:crypto";
import {once} from "node:events";
import http from "node:http";

// What a frame is
const TEXT = 1;
const CLOSE = 8;

/// Starts a telephone with its page at any port that is free.
export async function startTelephone(...options) {
  const child = spawn(process.env.TELEPHONE, ["--serve", "0", ...options], {stdio: ["ignore", "pipe", "inherit"]});
  const [line] = await once(child.stdout, "data");
  const address = String(line).match(/http:\S+\//)[0];
  return {child, address, port: Number(new URL(address).port)};
}

/// Ends it by a signal, and answers the exit code as a shell tells it.
export async function endTelephone(telephone) {
  const exit = once(telephone.child, "exit");
  telephone.child.kill("SIGTERM");
  const [code, signal] = await exit;
  return signal ?? code;
}

/// A request; answers the status, the headers and, of an upgrade, the socket. A connection that is closed is "closed".
export function request(address, headers, options = {}) {
  return new Promise((resolve) => {
    const asked = http.request(address, {headers, agent: false, ...options});
    asked.on("response", (answer) => {
      answer.resume();
      resolve({status: answer.statusCode, headers: answer.headers});
    });
    asked.on("upgrade", (answer, socket) => {
      socket.on("error", () => {});
      resolve({status: answer.statusCode, socket});
    });
    asked.on("error", () => resolve({status: "closed"}));
    asked.end();
  });
}

export function upgrade(address, headers = {}) {
  return request(address, {
    Connection: "Upgrade", Upgrade: "websocket", "Sec-WebSocket-Version": "13",
    "Sec-WebSocket-Key": randomBytes(16).toString("base64"), "Sec-WebSocket-Protocol": "telephone", ...headers,
  });
}

/// A frame of a web socket as a client sends it: with a mask, here of zeros.
export function frame(payload, opcode = TEXT) {
  const bytes = Buffer.from(payload);
  const isLong = bytes.length > 65535;
  const head = Buffer.alloc(bytes.length < 126 ? 6 : isLong ? 14 : 8);
  head[0] = 0x80 | opcode;
  head[1] = 0x80 | (bytes.length < 126 ? bytes.length : isLong ? 127 : 126);
  if (isLong)
    head.writeBigUInt64BE(BigInt(bytes.length), 2);
  else if (bytes.length >= 126)
    head.writeUInt16BE(bytes.length, 2);
  return Buffer.concat([head, bytes]);
}

/// A page without a browser: asks by the web socket and reads the answers; events are passed over.
export class Peer {
  static async open(address) {
    const {status, socket} = await upgrade(address);
    if (status !== 101)
      throw new Error(`no web socket: ${status}`);
    return new Peer(socket);
  }

  constructor(socket) {
    this.socket = socket;
    this.bytes = Buffer.alloc(0);
    this.messages = [];
    this.closeReason = null;
    socket.on("data", (part) => this.#take(part));
  }

  async ask(command) {
    return this.send(typeof command === "object" && !Buffer.isBuffer(command) ? JSON.stringify(command) : command);
  }

  async send(payload) {
    this.socket.write(frame(payload));
    for (;;) {
      const answer = this.messages.shift();
      if (answer)
        return answer;
      await once(this.socket, "told");
    }
  }

  async waitForClose() {
    // Not by once(): the answer to a close may find the other end gone, which is no fault.
    if (this.closeReason === null && !this.socket.destroyed)
      await new Promise((resolve) => { this.socket.on("close", resolve); });
    return this.closeReason;
  }

  #take(part) {
    this.bytes = Buffer.concat([this.bytes, part]);
    for (;;) {
      if (this.bytes.length < 2)
        return;
      const short = this.bytes[1] & 0x7f;
      const start = short < 126 ? 2 : short === 126 ? 4 : 10;
      if (this.bytes.length < start)
        return;
      const size = short < 126 ? short : short === 126 ? this.bytes.readUInt16BE(2) : Number(this.bytes.readBigUInt64BE(2));
      if (this.bytes.length < start + size)
        return;
      this.#tell(this.bytes[0] & 0x0f, this.bytes.subarray(start, start + size));
      this.bytes = this.bytes.subarray(start + size);
    }
  }

  #tell(opcode, payload) {
    if (opcode === CLOSE) {
      this.closeReason = payload.subarray(2).toString();
      this.socket.write(frame(payload, CLOSE));
    }
    if (opcode !== TEXT)
      return;
    const message = JSON.parse(payload.toString());
    if (!message.event) {
      this.messages.push(message);
      this.socket.emit("told");
    }
  }
}
