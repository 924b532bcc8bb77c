// The telephone as a page: opened, dialled by clicking, called, and looked at.

import assert from "node:assert/strict";
import {spawn} from "node:child_process";
import {once} from "node:events";
import http from "node:http";
import {after, before, test} from "node:test";
import {chromium} from "playwright-core";

const TELEPHONE = process.env.TELEPHONE;
const BROWSER = {
  executablePath: process.env.CHROMIUM || "/usr/bin/chromium",
  args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync"],
};

let telephone;
let address;
let browser;
let page;

async function start() {
  const child = spawn(TELEPHONE, ["--serve", "0"], {stdio: ["ignore", "pipe", "inherit"]});
  const [line] = await once(child.stdout, "data");
  return [child, String(line).match(/http:\S+\//)[0]];
}

async function shows(line) {
  await page.waitForFunction((wanted) => document.getElementById("text").textContent.split("\n").includes(wanted), line);
}

async function press(...keys) {
  for (const key of keys)
    await page.click(`[data-key="${key}"]`);
}

before(async () => {
  [telephone, address] = await start();
  browser = await chromium.launch(BROWSER);
  page = await browser.newPage({viewport: {width: 1000, height: 900}});
  page.on("pageerror", (error) => assert.fail(error));
  await page.goto(address);
});

after(async () => {
  await browser?.close();
  telephone?.kill("SIGTERM");
  if (telephone) {
    const [code, signal] = await once(telephone, "exit");
    assert.equal(signal ?? code, 143);
  }
});

test("a number is dialled by clicking, and the call is there", async () => {
  await shows("string0:4711");
  await press("4", "7", "1", "5");
  await shows("caption:Dial: 4715");
  await press("OK");
  await shows("caption:Dieter Maier 4715");
  await shows("icon0:Busy");
  await press("OK");
  await shows("string0:4711");
  assert.match(await page.textContent("#commands"), /Call\?/);
});

test("an incoming call is taken with the keys of the keyboard", async () => {
  await page.keyboard.press("F1");
  await shows("string0:Accept?");
  await page.keyboard.press("Enter");
  await shows("icon0:CallStateActive");
  await page.keyboard.press("Enter");
  await shows("string0:Hold?");
});

test("the canvas has the pixels of the picture", async () => {
  const different = await page.evaluate(async () => {
    const scale = 4;
    const border = 9; // frame and margin, in pixels of the glass
    const image = new Image();
    image.src = "picture.png";
    await image.decode();
    const canvas = document.createElement("canvas");
    canvas.width = image.width;
    canvas.height = image.height;
    const context = canvas.getContext("2d");
    context.drawImage(image, 0, 0);
    const glass = document.getElementById("glass");
    const shown = glass.getContext("2d").getImageData(0, 0, glass.width, glass.height).data;
    let count = 0;
    for (let y = 0; y < glass.height; ++y) {
      for (let x = 0; x < glass.width; ++x) {
        const [red] = context.getImageData((border + x) * scale + 1, (border + y) * scale + 1, 1, 1).data;
        count += (red < 128) !== (shown[4 * (y * glass.width + x)] < 128);
      }
    }
    return count;
  });
  assert.equal(different, 0);
});

function request(headers) {
  return new Promise((resolve, reject) => {
    const asked = http.request(address, {headers, agent: false});
    asked.on("response", (answer) => { answer.resume(); resolve(answer.statusCode); });
    asked.on("upgrade", (answer, socket) => { socket.on("error", () => {}); resolve({code: answer.statusCode, socket}); });
    asked.on("error", (error) => resolve(error.code));
    asked.end();
  });
}

const UPGRADE = {
  Connection: "Upgrade", Upgrade: "websocket", "Sec-WebSocket-Version": "13",
  "Sec-WebSocket-Key": "dGhlIHNhbXBsZSBub25jZQ==", "Sec-WebSocket-Protocol": "telephone",
};

test("a page of another site and another name are refused", async () => {
  assert.equal(await request({Origin: "http://elsewhere.example"}), 403);
  assert.equal(await request({Host: "elsewhere.example"}), 403);
  const other = await request({...UPGRADE, Origin: "http://elsewhere.example"});
  assert.notEqual(other.code, 101);
});

test("fifty others who never read do not disturb", async () => {
  const others = await Promise.all(Array.from({length: 50}, () => request(UPGRADE)));
  for (const other of others)
    assert.equal(other.code, 101);
  await press("LEFT");
  await page.waitForFunction(() => !document.getElementById("text").textContent.includes("Hold?"));
  for (const other of others)
    other.socket.destroy();
});

test("a port that is taken is told", async () => {
  const child = spawn(TELEPHONE, ["--serve", new URL(address).port], {stdio: ["ignore", "ignore", "pipe"]});
  let told = "";
  child.stderr.on("data", (part) => { told += part; });
  const [code] = await once(child, "close");
  assert.equal(code, 2);
  assert.match(told, /port \d+ is taken/);
});
