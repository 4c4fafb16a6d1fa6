// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <string>

// Processor time in seconds of one iteration of each benchmark: the median of its repetitions.
using Medians = std::map<std::string, double>;

// Runs the registered benchmarks as selected on the command line, several times each, and prints the results.
Medians runBenchmarks(int argc, char **argv);

// Prints a measured value and its goal; false if the goal was missed.
bool goalIsMet(const std::string &what, double measured, double limit, const std::string &unit);
