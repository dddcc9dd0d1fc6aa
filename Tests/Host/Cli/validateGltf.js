// node validateGltf.js FCTOOL SCRATCH.glb MODEL-OR-FOLDER...
// Draws each model into a scratch file and has the reference validator check it. Exits with 77
// where the package gltf-validator isn't there, with 1 when a file has an error.
const { execFileSync } = require("child_process");
const fs = require("fs");
const path = require("path");

let validator;
try {
  validator = require("gltf-validator");
} catch {
  console.log("the package gltf-validator isn't there");
  process.exit(77);
}

function modelsIn(place) {
  if (!fs.existsSync(place)) return [];
  if (!fs.statSync(place).isDirectory()) return [place];
  return fs.readdirSync(place).sort().flatMap((name) => modelsIn(path.join(place, name)))
    .filter((name) => name.endsWith(".ifc"));
}

function draw(fctool, model, output) {
  try {
    execFileSync(fctool, ["draw", model, "-o", output], { stdio: "ignore" });
  } catch (error) {
    if (error.status !== 1) return false; // 1: the model has problems, but was drawn
  }
  return true;
}

async function main([fctool, scratch, ...places]) {
  let failed = false;
  for (const model of places.flatMap(modelsIn)) {
    if (!draw(fctool, model, scratch)) continue;
    const report = await validator.validateBytes(new Uint8Array(fs.readFileSync(scratch)));
    const { numErrors, numWarnings, messages } = report.issues;
    if (numErrors + numWarnings === 0) continue;
    failed = true;
    console.log(model, messages.filter((message) => message.severity < 2).slice(0, 5));
  }
  process.exit(failed ? 1 : 0);
}

main(process.argv.slice(2));
