// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace host {

// Settings of a queue under a name, which every program of the user can print with ("queue/name"). A value.
struct Preset
{
    QString name; // empty for the user's own defaults of the queue itself
    QMap<QString, QString> options;
    bool operator==(const Preset &) const = default;
};

// The presets that libcups reads, in the files where it looks for them: one for all users and one of the
// user's, whose word counts where both name an option. Every call reads the files anew, and blocks; calls may
// come from any thread and from several processes at once. A change is made under a lock of ours, next to the
// file, and takes its place whole: lines of others stay as they are, byte for byte. Other programs know no
// lock: what they write while we do is looked for before and after, and kept.
class PresetStore
{
public:
    struct Files
    {
        QString everybodys; // may be empty
        QString users;
        bool writesForEverybody = false; // new presets go there, as they do for root
        unsigned mode = 0644;            // of a new file, as libcups has it; the user's own less the umask
    };
    // As libcups finds them.
    static Files filesOfCups();
    // Where the settings that a queue was printed with last are kept; readable by the user alone.
    static Files filesOfLastUsed();

    explicit PresetStore(Files files = filesOfCups()) : m_files(std::move(files)) {}

    // Of each queue that has any, by its name in lower case: libcups minds no case.
    using Names = QMap<QString, QStringList>;
    std::optional<Names> names(PrintError *error) const;
    // In the order of the files. Null with an error when a file that is there cannot be read.
    std::optional<QList<Preset>> list(const QString &queue, PrintError *error) const;
    // Adds a preset, or takes the place of the one of that name. Empty options take it away.
    bool save(const QString &queue, const Preset &preset, PrintError *error) const;
    // False when there is no such preset, or already one of the new name.
    bool rename(const QString &queue, const QString &from, const QString &to, PrintError *error) const;
    bool remove(const QString &queue, const QString &name, PrintError *error) const;

    // Why a preset cannot bear this name, in a user's words; null when it can.
    static QString nameProblem(const QString &name);

private:
    std::optional<QByteArray> contents(PrintError *error) const;
    // Makes new content of the old; null with an error for a change that cannot be made.
    using Change = std::function<std::optional<QByteArray>(const QByteArray &content, PrintError *error)>;
    bool change(const QString &path, const Change &change, PrintError *error) const;
    // The file that holds a preset; where a new one goes when none does.
    QString fileOf(const QString &queue, const QString &name, PrintError *error) const;

    Files m_files;
};

} // namespace host
