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

// The lines of a file of presets: "Dest queue/name option=value …", or "Default …" for the user's default.
// Other lines are preserved.

// The presets of a queue. Several lines for one preset are merged as in libcups.
QList<Preset> presetsIn(const QByteArray &content, const QString &queue);
// The names of all presets, by their queue in lower case.
QMap<QString, QStringList> presetNamesIn(const QByteArray &content);
// The content with a preset that replaces its earlier lines, or is appended. Null with an error if a line
// cannot represent the preset.
std::optional<QByteArray> withPreset(const QByteArray &content, const QString &queue, const Preset &preset,
                                     PrintError *error);
// The content with a preset renamed; its options are preserved.
QByteArray renamedPreset(const QByteArray &content, const QString &queue, const QString &from,
                         const QString &to);
// The content without a preset. If the preset was the default, its queue becomes the default.
QByteArray withoutPreset(const QByteArray &content, const QString &queue, const QString &name);

} // namespace host
