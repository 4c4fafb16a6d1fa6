// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace platform {
class KeyValueObject;
}

namespace host {

class PpdDocument;

// Values given as text, for the keys of a panel.

// The keys and key paths of a panel that can be set: its declared properties that can be written, without
// inner state (STORED false) and without those that stand for options which the panel does not handle on this
// printer.
QStringList settableKeys(platform::KeyValueObject *object, const QStringList &keywords);
// Sets a key as its type has it and looks whether it took the value. When it did not, the options of the
// panel are put back and the result says in a user's words, without the value, what the key takes; it is
// empty otherwise.
QString setPanelValue(platform::KeyValueObject *object, const QStringList &keywords, const PpdDocument &ppd,
                      const QString &keyPath, const QString &value);
// "Auto, Color, Mono" or "0 … 9".
QString choicesInWords(const PpdDocument &ppd, const QString &keyword);

} // namespace host
