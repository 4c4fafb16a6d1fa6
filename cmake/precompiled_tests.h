// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Compiled once and shared by the tests; sources must not rely on its includes.

#pragma once

#include "cmake/precompiled.h"

#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
