// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

// Size of the large PPD: far beyond any office printer's, so that what grows with the PPD shows.
constexpr int largePpdOptions = 200;
constexpr int largePpdChoices = 20;
constexpr int largePpdConstraints = 20000;

// Keyword of an option, "Opt000" and on, and of a choice, "C00" and on. The default is always C00.
QByteArray largePpdOption(int option);
QByteArray largePpdChoice(int choice);
// The body for an InlinePpd. The constraints join choices, none of them a default, of two options; they are
// drawn at random, the same ones each time.
QByteArray largePpd(int constraints = largePpdConstraints);
// The same as a whole file that a queue can have: with page sizes, a model name, and its options in groups.
QByteArray largePpdFile(int constraints);
