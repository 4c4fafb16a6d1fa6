// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QLoggingCategory>

// One category per module, so that users can enable each with QT_LOGGING_RULES and find its messages in the
// journal. Messages never contain codes or passwords.
KELMAR_PLATFORM_EXPORT const QLoggingCategory &lcPlatform();
KELMAR_PLATFORM_EXPORT const QLoggingCategory &lcPlugin();
KELMAR_PLATFORM_EXPORT const QLoggingCategory &lcPanels();
KELMAR_PLATFORM_EXPORT const QLoggingCategory &lcDevice();
KELMAR_PLATFORM_EXPORT const QLoggingCategory &lcHost();
