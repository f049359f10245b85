// Which benchmarks are there? Each prints its figures.
#pragma once

#include "tests/driver/Figures.h"

void BenchStart(const Effort& effort);
void BenchChange(const Effort& effort);
void BenchContrast(const Effort& effort);
void BenchHand(const Effort& effort);
void BenchHandles(const Effort& effort);
void BenchOpen(const Effort& effort);
void BenchOpenPicker(const Effort& effort);
void BenchParts(const Effort& effort);
void BenchPick(const Effort& effort);
void BenchSave(const Effort& effort);
