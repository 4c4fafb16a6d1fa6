// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/logging.h"

Q_LOGGING_CATEGORY(lcPlatform, "kelmar.platform", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPlugin, "kelmar.plugin", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPanels, "kelmar.panels", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDevice, "kelmar.device", QtInfoMsg)
Q_LOGGING_CATEGORY(lcHost, "kelmar.host", QtInfoMsg)
