// A Chromium that asks nobody for anything, and what its pages report.
import { mkdtempSync, rmSync } from "node:fs";
import { join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import puppeteer from "puppeteer-core";

const folder = fileURLToPath(new URL(".", import.meta.url));

export async function launch() {
  const userDataDir = mkdtempSync(join(folder, "profile-"));
  const browser = await puppeteer.launch({
    executablePath: "/usr/bin/chromium",
    userDataDir,
    args: [
      "--no-sandbox",
      "--disable-gpu",
      "--disable-quic",
      "--no-first-run",
      "--disable-background-networking",
      "--disable-component-update",
      "--disable-sync",
    ],
  });
  const close = async () => {
    await browser.close();
    rmSync(userDataDir, { recursive: true, force: true, maxRetries: 5 });
  };
  return { browser, close };
}

// Opens a file. `events` is everything that a page of one quiet file does not do:
// requests beside the file's own, messages, errors, dialogs, other windows.
export async function open(browser, file, { width = 1600, dark = false, script = true } = {}) {
  const address = pathToFileURL(file).href;
  const page = await browser.newPage();
  const events = [];
  let asked = 0;
  page.on("request", (request) => {
    asked += 1;
    if (request.url() !== address || asked > 1) {
      events.push(`request ${request.url()}`);
    }
  });
  page.on("console", (message) => events.push(`console ${message.type()}: ${message.text()}`));
  page.on("pageerror", (error) => events.push(`error ${error.message}`));
  page.on("popup", () => events.push("popup"));
  page.on("dialog", async (dialog) => {
    events.push(`dialog ${dialog.message()}`);
    await dialog.dismiss();
  });
  await page.setJavaScriptEnabled(script);
  await page.setViewport({ width, height: 900 });
  await page.emulateMediaFeatures([
    { name: "prefers-color-scheme", value: dark ? "dark" : "light" },
  ]);
  await page.goto(address, { waitUntil: "load" });
  return { page, events };
}

// The number of colours of a picture that is made small.
export async function countColours(browser, png) {
  const page = await browser.newPage();
  try {
    return await page.evaluate(async (base64) => {
      const image = new Image();
      image.src = `data:image/png;base64,${base64}`;
      await image.decode();
      const canvas = new OffscreenCanvas(300, 600);
      const context = canvas.getContext("2d");
      context.drawImage(image, 0, 0, canvas.width, canvas.height);
      const { data } = context.getImageData(0, 0, canvas.width, canvas.height);
      return new Set(new Uint32Array(data.buffer)).size;
    }, Buffer.from(png).toString("base64"));
  } finally {
    await page.close();
  }
}
