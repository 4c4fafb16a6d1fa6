// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

// Size of the large PPD: far beyond that of any office printer, so that costs that grow with the PPD become
// visible.
constexpr int largePpdOptions = 200;
constexpr int largePpdChoices = 20;
constexpr int largePpdConstraints = 20000;

// Keyword of an option, "Opt000" and so on, and of a choice, "C00" and so on. The default is always C00.
QByteArray largePpdOption(int option);
QByteArray largePpdChoice(int choice);
// The body of an InlinePpd. The constraints join choices of two options, none of them a default; they are
// random, but the same each time.
QByteArray largePpd(int constraints = largePpdConstraints);
// The same as a complete file for a queue: with page sizes, a model name, and its options in groups.
QByteArray largePpdFile(int constraints);
