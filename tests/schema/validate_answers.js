// SPDX-License-Identifier: MIT
//
// Validates what text-format says as JSON against docs/format.schema.json: `detect --json` and
// `explain --json` over many files, a saved Format, and a file that cannot be read. Then breaks a
// line in several ways, each of which must be refused.
//
// Usage: validate PROGRAM [samples | FOLDER ...]
// Over the examples and the samples of the tests, and over the files in the folders; without
// folders and "samples" over those in ../shared/corpus/files, where that is there.
// Exit code 1 for lines that are not valid, 77 when the validator is not installed (tools/setup
// schema installs it).
"use strict";

const { spawnSync } = require("node:child_process");
const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");

const root = path.resolve(__dirname, "../..");
const skipped = 77;

function loadAjv() {
  try {
    return require("ajv/dist/2020");
  } catch (error) {
    console.log(`SKIPPED: ${error.message.split("\n")[0]}; tools/setup schema installs it`);
    process.exit(skipped);
  }
}

function makeValidators() {
  const schema = JSON.parse(fs.readFileSync(path.join(root, "docs/format.schema.json"), "utf8"));
  const Ajv = loadAjv();
  const ajv = new Ajv({ strict: true, strictTypes: false, strictRequired: false });
  ajv.addSchema(schema);
  const part = (name) => ajv.getSchema(`${schema.$id}#/$defs/${name}`);
  return { any: ajv.getSchema(schema.$id), detect: part("detect"), explain: part("explain"),
           error: part("error"), format: part("format") };
}

function filesIn(folder) {
  return fs.readdirSync(folder, { withFileTypes: true })
    .filter((entry) => entry.isFile() && !entry.name.endsWith(".expect"))
    .map((entry) => path.join(folder, entry.name)).sort();
}

function filesToAnswer(given) {
  const ours = ["examples/data", "tests/samples", "tests/text_import/analysis/samples"]
    .map((folder) => path.join(root, folder));
  const corpus = path.resolve(root, "../shared/corpus/files");
  const others = given.length > 0 || !fs.existsSync(corpus) ? given : [corpus];
  const files = [...ours, ...others.filter((folder) => folder !== "samples")].map(filesIn);
  files.forEach((some, i) => console.log(`${some.length} files in ${[...ours, ...others][i]}`));
  return files.flat();
}

/// The lines that the program writes about the files, one for each.
function answers(program, command, files) {
  const lines = [];
  const atOnce = 200;
  for (let first = 0; first < files.length; first += atOnce) {
    const some = files.slice(first, first + atOnce);
    const run = spawnSync(program, [command, "--json", ...some],
                          { encoding: "utf8", maxBuffer: 1 << 30 });
    if (run.error || run.signal) {
      throw new Error(`${command} failed: ${run.error || run.signal}`);
    }
    const found = run.stdout.split("\n").slice(0, -1);
    if (found.length !== some.length) {
      throw new Error(`${command}: ${found.length} lines for ${some.length} files`);
    }
    lines.push(...found);
  }
  return lines;
}

class Check {
  constructor() {
    this.valid = 0;
    this.faults = 0;
  }

  fault(sentence) {
    this.faults += 1;
    console.log(sentence);
  }

  /// A line as it stands, which must be ASCII.
  line(text, validate, about) {
    if (!/^[ -~]+$/.test(text)) {
      this.fault(`${about}: not only printable ASCII`);
    }
    const value = JSON.parse(text);
    if (validate(value)) {
      this.valid += 1;
      return value;
    }
    const first = validate.errors[validate.errors.length - 1];
    const all = validate.errors.map((e) => `${e.instancePath} ${e.message}`).slice(0, 4).join("; ");
    this.fault(`${about}: ${all} (${JSON.stringify(first.params)})`);
    return value;
  }

  refused(value, validate, about) {
    if (validate(value)) {
      this.fault(`a line with ${about} is taken for valid`);
    }
  }
}

/// What a change to an answer is called, and what it does.
const breakages = {
  "a member too much": (a) => { a.extra = 1; },
  "a member too much far inside": (a) => { a.format.layout.extra = 1; },
  "a member too few": (a) => { delete a.decided; },
  "a member too few far inside": (a) => { delete a.format.region.start.rule; },
  "another schema": (a) => { a.schema = 1; },
  "an unknown type": (a) => { a.format.columns[0].type = "datetime"; },
  "an unknown layout": (a) => { a.format.layout.layout = "csv"; },
  "a column without width": (a) => { a.format.layout.widths = [0]; },
  "a character of two": (a) => { a.format.quoting.quote = "''"; },
  "an empty delimiter": (a) => { a.format.layout.delimiters = [""]; },
  "a number as a text": (a) => { a.num_columns = "3"; },
  "a negative line": (a) => { a.format.region.first_line = -1; },
  "a certainty above 1": (a) => { a.certainty.layout = 1.5; },
  "an unknown role": (a) => { a.evidence.lines = [{ line: 0, role: "head" }]; },
  "an unknown member of a measure": (a) => { a.explanation.measures[0].weight = 1; },
};

function checkRefusals(check, explanation, validators) {
  for (const [about, change] of Object.entries(breakages)) {
    const broken = structuredClone(explanation);
    change(broken);
    check.refused(broken, validators.explain, about);
    check.refused(broken, validators.any, about);
  }
  check.refused(explanation, validators.detect, "an explanation that detect should not give");
}

function checkSaved(check, program, file, validators) {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "schema-"));
  const saved = path.join(folder, "saved.format.json");
  spawnSync(program, ["detect", "--json", "--save", saved, file]);
  const text = JSON.stringify(JSON.parse(fs.readFileSync(saved, "utf8")));
  fs.rmSync(folder, { recursive: true });
  if (!validators.format(JSON.parse(text))) {
    check.fault(`saved Format of ${file}: ${JSON.stringify(validators.format.errors[0])}`);
  }
}

function main([program, ...given]) {
  const validators = makeValidators();
  const files = filesToAnswer(given);
  const check = new Check();
  let explanation = null;
  for (const command of ["detect", "explain"]) {
    answers(program, command, files).forEach((text, i) => {
      const isError = "error" in JSON.parse(text);
      const value = check.line(text, validators[isError ? "error" : command],
                               `${command} ${path.relative(root, files[i])}`);
      if (command === "explain" && !isError && value.format.columns.length > 1) {
        explanation = explanation || value;
      }
    });
  }
  const [missing] = answers(program, "detect", [path.join(__dirname, "no such file")]);
  check.line(missing, validators.error, "detect of a file that is not there");
  if (explanation) {
    checkRefusals(check, explanation, validators);
    checkSaved(check, program, explanation.path, validators);
  } else {
    check.fault("no explanation of several columns to break");
  }
  console.log(`${check.valid} lines are valid, ${check.faults} faults`);
  return check.faults > 0 ? 1 : 0;
}

process.exit(main(process.argv.slice(2)));
