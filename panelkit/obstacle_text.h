// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QVPDEManager_M880;

// Texts with which panels describe choices, in the language of the manager's bundle.

// A choice of an option as shown in the interface; the keyword if the PPD has no such choice.
QString QVTextOfChoice(const QVPDEManager_M880 &manager, const QString &option, const QString &choice);
// The reason why a control or choice is not available: the conflicting option and the text of its choice.
QString QVObstacleText(const QVPDEManager_M880 &manager, const QString &option, const QString &choiceText);
