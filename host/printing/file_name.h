// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace host {

// File names are bytes. These carry any of them through a QString and back: a name that is not UTF-8 keeps
// its bytes above 127 as lone surrogates (U+DC80 to U+DCFF), which no text has.
QString fileNameFromBytes(const QByteArray &bytes);
QByteArray fileNameToBytes(const QString &name);
// For people: a sign of replacement for each byte that is no text.
QString readableFileName(const QString &name);
// Opens a file of such a name for reading. False with the reason in words.
bool openForReading(QFile *file, const QString &name, QString *problem);

} // namespace host
