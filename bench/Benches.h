// Which benchmarks are there? Each prints a table.
#pragma once

void BenchStart();
void BenchChange();
void BenchOpen();
void BenchOpenPicker();
void BenchPick();
