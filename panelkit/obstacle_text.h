// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QVPDEManager_M880;

// The words in which panels tell of choices, in the language of the manager's bundle.

// A choice of an option as the interface shows it; the keyword where the PPD has no such choice.
QString QVTextOfChoice(const QVPDEManager_M880 &manager, const QString &option, const QString &choice);
// Why a control or a choice is not available: the option that stands in its way, and the text of its choice.
QString QVObstacleText(const QVPDEManager_M880 &manager, const QString &option, const QString &choiceText);
