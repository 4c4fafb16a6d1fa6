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

// The keys and key paths of a panel that can be set: its declared writable properties, without internal state
// (STORED false) and without properties for options that the panel does not handle on this printer.
QStringList settableKeys(platform::KeyValueObject *object, const QStringList &keywords);
// Sets a key according to its type and checks that it has accepted the value. If it has not, the options of
// the panel are restored, and the result is a localised description of valid values that does not contain the
// value. Empty on success.
QString setPanelValue(platform::KeyValueObject *object, const QStringList &keywords, const PpdDocument &ppd,
                      const QString &keyPath, const QString &value);
// "Auto, Color, Mono" or "0 … 9".
QString choicesInWords(const PpdDocument &ppd, const QString &keyword);

} // namespace host
