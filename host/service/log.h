// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLoggingCategory>

// "kelmar.service". Messages never contain settings, since some are codes.
Q_DECLARE_LOGGING_CATEGORY(lcService)
