// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/preset_store.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// The lines of a file of presets: "Dest queue/name option=value …", or "Default …" for the one that is the
// user's default. Whatever else stands in the file is left as it is.

// The presets of a queue, those of several lines put together as libcups does.
QList<Preset> presetsIn(const QByteArray &content, const QString &queue);
// The names of all presets, by their queue in lower case.
QMap<QString, QStringList> presetNamesIn(const QByteArray &content);
// The content with a preset in place of its earlier lines, or at the end. Null with an error that says what a
// line cannot hold.
std::optional<QByteArray> withPreset(const QByteArray &content, const QString &queue, const Preset &preset,
                                     PrintError *error);
// The same with a preset under another name, its options untouched.
QByteArray renamedPreset(const QByteArray &content, const QString &queue, const QString &from,
                         const QString &to);
// The same without a preset. A line that makes it the default makes the queue the default.
QByteArray withoutPreset(const QByteArray &content, const QString &queue, const QString &name);

} // namespace host
