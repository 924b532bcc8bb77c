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

/// How many of the picture's pixels a screenshot of the glass has otherwise.
async function differentPixels(shown) {
  const glass = shown.locator("#glass");
  await shown.waitForFunction(() => document.getElementById("glass").dataset.scale);
  const shot = (await glass.screenshot()).toString("base64");
  return shown.evaluate(async (png) => {
    const frame = 9; // around the dots of the picture, in dots
    const canvas = document.getElementById("glass");
    const [scale, left, top] = ["scale", "left", "top"].map((name) => Number(canvas.dataset[name]));
    const pixels = async (source, x, y, width, height) => {
      const image = await createImageBitmap(source);
      const drawing = document.createElement("canvas");
      Object.assign(drawing, {width, height});
      drawing.getContext("2d").drawImage(image, -x, -y);
      return new Uint32Array(drawing.getContext("2d").getImageData(0, 0, width, height).data.buffer);
    };
    const [width, height] = [162 * scale, (canvas.height - 2 * top) - (canvas.height - 2 * top) % scale];
    const wanted = await pixels(await (await fetch(`/picture.png?scale=${scale}`)).blob(), frame * scale, frame * scale, width, height);
    const bytes = new Blob([Uint8Array.from(atob(png), (byte) => byte.charCodeAt(0))]);
    let least = Infinity; // a screenshot begins at a whole pixel, which the canvas need not
    for (const [x, y] of [[0, 0], [1, 0], [0, 1], [1, 1]]) {
      const seen = await pixels(bytes, left + x, top + y, width, height);
      least = Math.min(least, seen.reduce((count, pixel, place) => count + (pixel !== wanted[place]), 0));
    }
    return least;
  }, shot);
}

test("the glass is seen as in the picture, wide and narrow", async () => {
  for (const [width, density] of [[1000, 1], [375, 1]]) {
    const other = await browser.newPage({viewport: {width, height: 800}, deviceScaleFactor: density, reducedMotion: "reduce"});
    await other.goto(telephone.address);
    await other.waitForFunction(() => document.getElementById("text").textContent.includes("Hold?"));
    // The call's seconds go on between a screenshot and the picture; what is drawn wrongly stays wrong.
    let different = 1;
    for (let attempt = 0; attempt < 10 && different > 0; ++attempt)
      different = await differentPixels(other);
    assert.equal(different, 0, `${width} at ${density}`);
    assert.ok(await other.evaluate(() => document.documentElement.scrollWidth <= innerWidth), "nothing is cut");
    await other.close();
  }
});

test("the canvas has the very pixels of a dense screen", async () => {
  for (const density of [1.5, 2]) { // of the browser itself: one that is only emulated does not tell the canvas
    const dense = await chromium.launch({...BROWSER, args: [...BROWSER.args, `--force-device-scale-factor=${density}`]});
    const shown = await (await dense.newContext({viewport: null})).newPage();
    await shown.goto(telephone.address);
    await shown.waitForFunction(() => document.getElementById("glass").dataset.scale);
    const [pixels, size] = await shown.evaluate(() => {
      const canvas = document.getElementById("glass");
      const {width, height} = canvas.getBoundingClientRect();
      return [[canvas.width, canvas.height], [width, height].map((length) => Math.round(length * devicePixelRatio))];
    });
    assert.deepEqual(pixels, size, `at ${density}`);
    await dense.close();
  }
});

test("function keys have labels, and a held key is let go with the window", async () => {
  assert.deepEqual(await page.locator("#functions small").allTextContents().then((all) => all.slice(0, 2)), ["incoming", "language"]);
  await page.keyboard.down("5");
  assert.equal(await page.locator(".down").count(), 1);
  await page.evaluate(() => dispatchEvent(new Event("blur")));
  assert.equal(await page.locator(".down").count(), 0);
});

test("another variant is shown in every page that is open, and the first again", async () => {
  const second = await browser.newPage();
  await second.goto(telephone.address);
  for (const lines of [3, 2]) {
    await page.click(`[data-variant="lines ${lines}"]`);
    for (const each of [page, second])
      await each.waitForSelector(`[data-variant="lines ${lines}"][aria-pressed="true"]`);
    await shows("string0:4711");
  }
  await second.close();
});

test("a port that is taken is told", async () => {
  const child = spawn(process.env.TELEPHONE, ["--serve", String(telephone.port)], {stdio: ["ignore", "ignore", "pipe"]});
  let told = "";
  child.stderr.on("data", (part) => { told += part; });
  const [code] = await once(child, "close");
  assert.equal(code, 2);
  assert.match(told, /port \d+ is taken/);
});
