// What does the package chroma-js say of the contrast of colours? contrast.js FILE, of which each line holds a pair of packed
// colours: red in the low byte. Prints a ratio for each.
const chroma = require("/usr/share/nodejs/chroma-js/chroma.min.js");
const fs = require("fs");

const color = (packed) => chroma(packed & 255, (packed >> 8) & 255, packed >> 16);
const lines = fs.readFileSync(process.argv[2], "utf8").trim().split("\n");
const ratios = lines.map((line) => chroma.contrast(...line.split(" ").map(color)));
process.stdout.write(ratios.join("\n") + "\n");
