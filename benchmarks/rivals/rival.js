// SPDX-License-Identifier: MIT
//
// Times one Node program's detection: rival.js NAME RUNS, paths on standard input. Prints the same
// lines as rival.py; tools/compare starts it with NODE_PATH set to where the packages are.
'use strict';
const fs = require('fs');

const WARM_UP_FILES = 20;
const SLOW_MS = 500;

async function papaparse() {
  const papa = require('papaparse');
  const { version } = require('papaparse/package.json');
  // Without a delimiter, ten rows are asked for: what is timed is the file read and the guess.
  return [version, async (path) => papa.parse(fs.readFileSync(path, 'utf8'), { preview: 10 })];
}

async function duckdb() {
  const { DuckDBInstance } = require('@duckdb/node-api');
  const connection = await (await DuckDBInstance.create(':memory:', { threads: '1' })).connect();
  const rows = async (sql) => (await connection.runAndReadAll(sql)).getRows();
  const [[version]] = await rows('select version()');
  return [version, (path) => rows(`select * from sniff_csv('${path.replaceAll("'", "''")}')`)];
}

async function medianMs(call, path, runs) {
  const times = [];
  try {
    do {
      const start = process.hrtime.bigint();
      await call(path);
      times.push(Number(process.hrtime.bigint() - start) / 1e6);
    } while (times.length < runs && times[0] < SLOW_MS);
  } catch (error) {
    return 'error';
  }
  times.sort((a, b) => a - b);
  return times[Math.floor(times.length / 2)].toFixed(6);
}

async function main() {
  const [name, runs] = [process.argv[2], Number(process.argv[3])];
  const [version, call] = await { papaparse, duckdb }[name]();
  const paths = fs.readFileSync(0, 'utf8').split('\n').filter((path) => path !== '');
  for (const path of paths.slice(0, WARM_UP_FILES)) {
    await medianMs(call, path, 1);
  }
  console.log(`version\t${version}`);
  for (const path of paths) {
    console.log(`${path}\t${await medianMs(call, path, runs)}`);
  }
}

main().catch((error) => {
  console.error(String(error));
  process.exit(1);
});
