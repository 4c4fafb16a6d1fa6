// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace host {

// File names are bytes. These functions convert them to a QString and back without loss: bytes above 127 that
// are not UTF-8 become lone surrogates (U+DC80 to U+DCFF), which occur in no text.
QString fileNameFromBytes(const QByteArray &bytes);
QByteArray fileNameToBytes(const QString &name);
// For display: each byte that is not UTF-8 becomes a replacement character.
QString readableFileName(const QString &name);
// Opens a file with such a name for reading. False with a localised reason.
bool openForReading(QFile *file, const QString &name, QString *problem);

} // namespace host
