#pragma once

#include <windows.h>

#include <string>

#include "windows/by_turns.h"

namespace tavrin::bench {

// The chapters of window_bench; each prints its figures.

/// The grid against the platform's virtual list view, with so many rows: first paint, repainting, jumps.
void CompareGrids(Report& report, int rows);

/// Address book: an arrow key in the list until the record is repainted.
void TimePersonKeys(int persons);

/// Calculator: a digit until both displays are repainted.
void TimeCalculatorKeys();

/// The chart against the same drawn with GDI+.
void CompareCharts(Report& report);

/// From the creation of the component's object to the painted palette, in fresh processes, against the
/// barest window in as many others.
void ComparePalettes();
/// One such process: opens the palette (size 0 by 0) or the bare window. \return microseconds
int TimeFirstWindow(SIZE bareSize);

/// Every other window from the click to the paint, against its twin.
void TimeWindows();
/// One process that opens a window for the first time, or its twin. \return microseconds
int TimeFirstOpening(const std::string& window, bool asTwin);

/// Private bytes with windows open.
void WeighWindows();

}  // namespace tavrin::bench
