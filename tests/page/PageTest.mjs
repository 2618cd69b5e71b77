// The report as a page, in a browser.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { join } from "node:path";
import { fileURLToPath } from "node:url";
import axe from "axe-core";
import { countColours, launch, open } from "./Browser.mjs";
import { countSilentSensors, misbehaving, reports, sensorsOf } from "./Reports.mjs";

const folder = fileURLToPath(new URL(".", import.meta.url));
const all = reports();
let session;
before(async () => {
  session = await launch();
});
after(async () => {
  await session.close();
});

// Opens a page, has it looked at, and expects that nothing else happened.
async function look(report, options, check) {
  const { page, events } = await open(session.browser, report.file, options);
  try {
    await check(page);
    assert.deepEqual(events, []);
  } finally {
    await page.close();
  }
}

const count = (page, selector) => page.$$eval(selector, (found) => found.length);
const countShown = (page, selector) =>
  page.$$eval(selector, (found) => found.filter((one) => one.checkVisibility()).length);

// What stands in a column, from above; of a number its value.
const column = (page, table, index) =>
  page.evaluate(
    (number, cell) =>
      Array.from(document.querySelectorAll("table.sensors")[number].tBodies[0].rows, (row) =>
        cell === 0 ? row.cells[0].textContent : (row.cells[cell].dataset.value ?? null),
      ),
    table,
    index,
  );

function expectSorted(texts, index, ascending) {
  const values = texts.filter((one) => one !== null);
  const collator = new Intl.Collator("en", { numeric: true, sensitivity: "base" });
  const order = (one, other) => (index === 0 ? collator.compare(one, other) : one - other);
  for (let i = 1; i < values.length; ++i) {
    const step = order(values[i - 1], values[i]);
    assert.ok(ascending ? step <= 0 : step >= 0, `${values[i - 1]} before ${values[i]}`);
  }
  assert.deepEqual(texts.slice(values.length).filter((one) => one !== null), []);
}

async function expectNoViolation(page) {
  await page.evaluate(axe.source);
  const { violations, passes } = await page.evaluate(() => window.axe.run());
  assert.deepEqual(
    violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join(" ")}`),
    [],
  );
  assert.ok(passes.length > 10);
}

for (const report of all) {
  describe(report.name, () => {
    const sensors = sensorsOf(report).length;

    test("shows each sensor once, with script and without", async () => {
      for (const script of [true, false]) {
        await look(report, { script }, async (page) => {
          assert.equal(await count(page, "tr.sensor"), sensors);
          assert.equal(await countShown(page, "tr.sensor"), sensors);
          assert.equal(await countShown(page, "tr.silent"), countSilentSensors(report));
          assert.equal(await countShown(page, "#tools"), script ? 1 : 0);
          assert.equal((await count(page, "th button")) > 0, script && sensors > 0);
        });
      }
    });

    test("sorts each table by each column, both ways", async () => {
      await look(report, {}, async (page) => {
        const tables = await count(page, "table.sensors");
        assert.equal(tables > 0, sensors > 0);
        for (let table = 0; table < tables; ++table) {
          const headings = await (await page.$$("table.sensors"))[table].$$("th[data-sort]");
          for (const heading of headings) {
            const index = await heading.evaluate((one) => one.cellIndex);
            const before = await column(page, table, index);
            const button = await heading.$("button");
            for (const direction of ["ascending", "descending"]) {
              // With the mouse, then with the keyboard.
              await (direction === "ascending" ? button.click() : button.press("Enter"));
              const texts = await column(page, table, index);
              assert.equal(await heading.evaluate((one) => one.ariaSort), direction);
              expectSorted(texts, index, direction === "ascending");
              assert.deepEqual([...texts].sort(), [...before].sort());
            }
          }
          const sorted = await (await page.$$("table.sensors"))[table].$$("[aria-sort]");
          assert.equal(sorted.length, 1);
        }
      });
    });

    test("shows what is searched for", async () => {
      await look(report, {}, async (page) => {
        const items = await count(page, "[data-find], .sensor, .silent");
        await page.type("#search", "PLANAR volt");
        const wanted = sensorsOf(report).filter(({ properties }) =>
          /planar.*volt/i.test(properties.SensorDescription),
        );
        assert.ok(wanted.length > 0 || report.name !== "demo-orlo");
        assert.equal(await countShown(page, "tr.sensor"), wanted.length);
        assert.equal(
          await page.$eval("#found", (one) => one.textContent),
          `${await countShown(page, "[data-find], .sensor, .silent")} of ${items}`,
        );
        await page.type("#search", " nowhere");
        assert.equal(await countShown(page, "[data-find], .sensor, section"), 0);
        assert.equal(await page.$eval("#found", (one) => one.textContent), `0 of ${items}`);
        await page.keyboard.press("Escape");
        assert.equal(await countShown(page, "tr.sensor"), sensors);
      });
    });

    test("opens and closes all CIM properties", async () => {
      await look(report, {}, async (page) => {
        const details = await count(page, "details");
        assert.equal(await count(page, "details[open]"), 0);
        await page.click("#names");
        assert.equal(await count(page, "details[open]"), details);
        await page.click("#names");
        assert.equal(await count(page, "details[open]"), 0);
      });
    });

    test("has nothing that axe-core objects to", async () => {
      await look(report, {}, expectNoViolation);
      for (const options of [{ width: 360 }, { dark: false }, { dark: true }]) {
        await look(report, options, async (page) => {
          await page.click("#names");
          await expectNoViolation(page);
        });
      }
    });

    test("fits a narrow and a wide window", async () => {
      for (const dark of [false, true]) {
        for (const width of [360, 1600]) {
          await look(report, { dark, width }, async (page) => {
            const path = join(folder, `${report.name}-${width}-${dark ? "dark" : "light"}.png`);
            assert.ok((await countColours(session.browser, await page.screenshot({ path, fullPage: true }))) > 30);
            assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), width);
            await page.click("#names");
            assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), width);
          });
        }
      }
    });

    test("is printed without what only a screen can use", async () => {
      await look(report, {}, async (page) => {
        await page.emulateMediaType("print");
        assert.equal(await countShown(page, "#tools"), 0);
        assert.equal(await countShown(page, "tr.sensor"), sensors);
      });
    });

    test("is made of its own markup alone", async () => {
      await look(report, {}, async (page) => {
        assert.equal(await page.evaluate(() => window.strakeHostile), undefined);
        assert.equal(await count(page, "script"), 1);
        assert.equal(await count(page, "style"), 1);
        assert.equal(await count(page, "main, h1"), 2);
        assert.equal(await count(page, "img, iframe, object, embed, base, link, b[onclick]"), 0);
        const attributes = await page.$$eval("*", (found) =>
          found.flatMap((one) => one.getAttributeNames()),
        );
        assert.deepEqual(attributes.filter((name) => /^(on|style$|src$)/.test(name)), []);
      });
    });
  });
}

test("sensors that did not answer are among what is looked at", () => {
  assert.ok(countSilentSensors(all[0]) > 0);
});

test("hostile texts are shown as they are written", async () => {
  const report = all.find(({ name }) => name === "hostile");
  const texts = report.json.instances
    .filter((one) => one.class !== "VELKSG_SP_NumericSensor")
    .flatMap(({ properties }) => Object.values(properties))
    .filter((value) => typeof value === "string" && /^[ -~]+$/.test(value));
  assert.ok(texts.filter((one) => one.includes("<script>")).length > 5);
  await look(report, {}, async (page) => {
    const shown = await page.$eval("body", (body) => body.textContent);
    assert.deepEqual(texts.filter((one) => !shown.includes(one)), []);
    assert.ok(!shown.includes("\u202e"));
    assert.ok((await page.title()).startsWith(`"><img src=x onerror=strakeHostile=1>\\xE2\\x80\\xAE`));
  });
});

// These tests would see it.
test("a page that holds more than its own markup is stopped and heard", async () => {
  const file = misbehaving(all[0]);
  const { page, events } = await open(session.browser, file);
  try {
    assert.equal(await page.evaluate(() => window.strakeHostile), undefined);
    assert.ok(events.filter((one) => one.includes("Content Security Policy")).length >= 3);
  } finally {
    await page.close();
  }
});
