// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#if defined(KELMAR_PLATFORM_BUILD)
#define KELMAR_PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define KELMAR_PLATFORM_EXPORT Q_DECL_IMPORT
#endif
