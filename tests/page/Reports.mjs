// Pages, JSON reports and rows of tables of one server, made by the command.
import { execFileSync } from "node:child_process";
import { copyFileSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { fileURLToPath } from "node:url";

const folder = fileURLToPath(new URL(".", import.meta.url));
const source = process.env.STRAKE_SOURCE_DIR;

function collect(options, format) {
  return execFileSync(process.env.STRAKE, ["collect", "--quiet", "--format", format, ...options], {
    encoding: "utf8",
    maxBuffer: 1 << 28,
  });
}

function report(name, options) {
  const file = join(folder, `${name}.html`);
  writeFileSync(file, collect(options, "html"));
  const rows = collect([...options, "--no-header"], "table").split("\n");
  return { name, file, json: JSON.parse(collect(options, "json")), rows };
}

// Every text of this server is hostile, its name too.
function hostile() {
  const file = join(folder, `"><img src=x onerror=strakeHostile=1>\u202e.server.json`);
  copyFileSync(join(source, "tests/page/hostile.server.json"), file);
  return report("hostile", ["--server", file, "--show-secrets"]);
}

export function reports() {
  const silent = join(source, "servers/orlo-silent.server.json");
  return [
    report("demo-orlo", ["--demo", "demo-orlo"]),
    report("demo-tavit", ["--demo", "demo-tavit"]),
    report("judged", ["--limits", join(source, "docs/example.limits.toml")]),
    hostile(),
    report("nothing", ["--server", silent]),
  ];
}

export const sensorsOf = ({ json }) =>
  json.instances.filter((one) => one.class === "VELKSG_SP_NumericSensor");

// The table's rows of them: "SP 1  fan  Fan 16 speed  no answer".
const silentRow = /^(SP \d+|-) +(temperature|fan|voltage|current|power|other) .* no answer$/;
export const countSilentSensors = ({ rows }) => rows.filter((row) => silentRow.test(row)).length;

// A page that does what none may do.
export function misbehaving({ file }) {
  const bad = join(folder, "misbehaving.html");
  const html = readFileSync(file, "utf8").replace(
    "<main>",
    "<main><script>window.strakeHostile = 1;</script><img src=x onerror='strakeHostile=1'>" +
      "<p style='color:red'>x</p>",
  );
  writeFileSync(bad, html);
  return bad;
}
