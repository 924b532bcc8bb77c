// The telephone as a page: opened, dialled by clicking, called, and looked at.

import assert from "node:assert/strict";
import {spawn} from "node:child_process";
import {once} from "node:events";
import {after, before, test} from "node:test";
import {chromium} from "playwright-core";
import {endTelephone, startTelephone} from "./telephone.js";

const BROWSER = {
  executablePath: process.env.CHROMIUM || "/usr/bin/chromium",
  args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync"],
};

let telephone;
let browser;
let page;

async function shows(line) {
  await page.waitForFunction((wanted) => document.getElementById("text").textContent.split("\n").includes(wanted), line);
}

async function press(...keys) {
  for (const key of keys)
    await page.click(`[data-key="${key}"]`);
}

before(async () => {
  telephone = await startTelephone();
  browser = await chromium.launch(BROWSER);
  page = await browser.newPage({viewport: {width: 1000, height: 900}});
  page.on("pageerror", (error) => assert.fail(error));
  await page.goto(telephone.address);
});

after(async () => {
  await browser?.close();
  if (telephone)
    assert.equal(await endTelephone(telephone), 143);
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

test("a port that is taken is told", async () => {
  const child = spawn(process.env.TELEPHONE, ["--serve", String(telephone.port)], {stdio: ["ignore", "ignore", "pipe"]});
  let told = "";
  child.stderr.on("data", (part) => { told += part; });
  const [code] = await once(child, "close");
  assert.equal(code, 2);
  assert.match(told, /port \d+ is taken/);
});
