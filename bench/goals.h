// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <string>

// Processor seconds that one iteration of each benchmark took: the median of its repetitions.
using Medians = std::map<std::string, double>;

// Runs the registered benchmarks as the command line says, several times each, and prints them as usual.
Medians runBenchmarks(int argc, char **argv);

// Prints what was measured and its goal; false when it is above.
bool goalIsMet(const std::string &what, double measured, double limit, const std::string &unit);
