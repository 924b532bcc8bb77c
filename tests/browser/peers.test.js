// What comes to the port of the page: from other sites, from broken programs, and from those that go at the wrong moment.

import assert from "node:assert/strict";
import net from "node:net";
import {after, before, test} from "node:test";
import {Peer, endTelephone, frame, request, startTelephone, upgrade} from "./telephone.js";

let telephone;
let peer;

before(async () => {
  telephone = await startTelephone();
  peer = await Peer.open(telephone.address);
  assert.ok((await peer.ask({do: "expect", text: "string0:4711"})).ok);
});

after(() => telephone?.child.kill("SIGKILL"));

async function goesOn() {
  const answer = await peer.ask({do: "text", settled: false});
  assert.ok(answer.ok && answer.text.includes("name:"));
}

/// The page is served, and the web socket opens, behind a variant that begins.
async function reopen() {
  for (;;) {
    try {
      return await Peer.open(telephone.address);
    } catch {
      // not yet
    }
  }
}

test("other sites, other names and other methods are refused", async () => {
  const port = telephone.port;
  const long = `http://${"elsewhere.".repeat(30)}example`;
  for (const headers of [{Origin: "http://elsewhere.example"}, {Origin: "null"}, {Origin: long},
    {Origin: `http://localhost:${port + 1}`}, {Host: "elsewhere.example"}, {Host: `elsewhere.example:${port}`},
    {Host: `127.0.0.1:${port + 1}`}, {Host: `127.0.0.1:${port}.${"elsewhere.".repeat(30)}`}]) {
    assert.equal((await request(telephone.address, headers)).status, 403, JSON.stringify(headers));
    assert.notEqual((await upgrade(telephone.address, headers)).status, 101, JSON.stringify(headers));
  }
  for (const protocol of ["http", "signals", "other", ""])
    assert.notEqual((await upgrade(telephone.address, {"Sec-WebSocket-Protocol": protocol})).status, 101, protocol);
  assert.equal((await request(telephone.address, {}, {method: "POST"})).status, 405);
  assert.equal((await request(`${telephone.address}../../etc/passwd`, {})).status, 404);
  assert.equal((await request(telephone.address, {Host: `localhost:${port}`})).status, 200);
});

test("nothing of other sites may be in the page, the page in no frame, and the picture in no cache", async () => {
  for (const path of ["", "phone.js", "picture.png", "picture.png?scale=999", "picture.png?scale=-x"]) {
    const {status, headers} = await request(telephone.address + path, {});
    assert.equal(status, 200, path);
    assert.equal(headers["cache-control"], "no-store");
    assert.match(headers["content-security-policy"], /^default-src 'self'; connect-src 'self' ws:\/\/127\.0\.0\.1:\d+;/);
    assert.match(headers["content-security-policy"], /frame-ancestors 'none'/);
    assert.equal(headers["cross-origin-resource-policy"], "same-origin");
  }
});

test("what is no command is answered, and the telephone goes on", async () => {
  const deep = `{"do": "hello", "id": ${"[".repeat(32000)}${"]".repeat(32000)}}`;
  for (const [payload, error] of [["{\"do\": key}", "bad-json"], [Buffer.from([0x22, 0xff, 0xfe, 0x22]), "bad-json"],
    ["", "bad-json"], ["\0", "bad-json"], [deep, "bad-request"], ["x".repeat(1 << 20), "too-long"]])
    assert.equal((await peer.ask(payload)).error, error);
  await goesOn();
});

test("who sends half a request, half a frame or nonsense holds nobody up", async () => {
  const halves = [];
  const begins = ["GET / HTTP/1.1\r\nHost:", "GET /picture.png HTTP/1.1\r\n\r\n", "\x16\x03\x01", `GET /${"x".repeat(1 << 16)}`, ""];
  for (let count = 0; count < 50; ++count) {
    const socket = net.connect(telephone.port, "127.0.0.1");
    socket.on("error", () => {});
    socket.write(begins[count % begins.length], "latin1");
    halves.push(socket);
  }
  const {socket} = await upgrade(telephone.address);
  socket.write(frame("half of it").subarray(0, 9));
  const other = await upgrade(telephone.address);
  other.socket.write(Buffer.from([0xff, 0xff, 0xff, 0xff]));
  await goesOn();
  for (const half of [...halves, socket, other.socket])
    half.destroy();
});

test("fifty peers are served at once", async () => {
  const peers = await Promise.all(Array.from({length: 50}, () => Peer.open(telephone.address)));
  const answers = await Promise.all(peers.map((each) => each.ask({do: "hello"})));
  assert.ok(answers.every((answer) => answer.ok));
  for (const each of peers)
    each.socket.destroy();
});

test("who asks and does not read is left, and who waits holds nobody up", async () => {
  const waiting = await Peer.open(telephone.address);
  waiting.socket.write(frame(JSON.stringify({do: "expect", text: "nothing", timeout: 3600})));
  const {socket} = await upgrade(telephone.address);
  socket.pause();
  const left = new Promise((resolve) => { socket.on("close", resolve); });
  const questions = Buffer.concat(Array.from({length: 50}, () => frame('{"do": "pixels", "settled": false}')));
  const ask = () => socket.write(questions, (error) => error ? socket.resume() : ask());
  ask();
  await left;
  await goesOn();
  waiting.socket.destroy();
});

test("a peer that goes lets its keys go", async () => {
  for (const key of ["OK", "UP", "OK"])
    await peer.ask({do: "key", key});
  assert.ok((await peer.ask({do: "expect", text: "caption:Settings:"})).ok);
  const before = (await peer.ask({do: "text"})).text;
  const holder = await Peer.open(telephone.address);
  await holder.ask({do: "key", key: "DOWN", state: "press"});
  assert.equal((await peer.ask({do: "text"})).text, before, "the row moves when the key is let go");
  holder.socket.destroy();
  while ((await peer.ask({do: "text"})).text === before) { /* it comes */ }
});

test("another variant begins at the same address, whoever asks for it and how often", async () => {
  const {child, address} = telephone;
  assert.match((await peer.ask({do: "variant", model: "rx99"})).reason, /plain, rx40, rx70/);
  assert.ok((await peer.ask({do: "variant", lines: 2})).ok, "it is on");
  const other = await Peer.open(address);
  const wanted = {lines: 3, model: "rx70", software: "sip"};
  for (const each of [peer, other])
    each.socket.write(frame(JSON.stringify({do: "variant", ...wanted})));
  assert.deepEqual(await Promise.all([peer.waitForClose(), other.waitForClose()]), ["variant", "variant"]);
  peer = await reopen();
  const hello = await peer.ask({do: "hello"});
  assert.deepEqual(hello.variant, wanted);
  assert.equal(hello.height, 47);
  for (const lines of [2, 3, 2]) {
    peer.socket.write(frame(JSON.stringify({do: "variant", lines})));
    await peer.waitForClose();
    peer = await reopen();
    assert.equal((await peer.ask({do: "hello"})).variant.lines, lines);
  }
  assert.equal(child.exitCode, null);
});

test("a signal ends the telephone, and tells those who are there", async () => {
  assert.equal(await endTelephone(telephone), 143);
  assert.equal(await peer.waitForClose(), "ended");
});
