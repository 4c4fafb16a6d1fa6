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

// A named set of settings for a queue, with which every program of the user can print ("queue/name"). A
// value.
struct Preset
{
    QString name; // empty for the user's defaults of the queue itself
    QMap<QString, QString> options;
    bool operator==(const Preset &) const = default;
};

// Whether two names denote the same preset. Like libcups, ignores the case of ASCII letters only.
bool isSamePreset(const QString &name, const QString &other);
// The preset with this name; null if there is none.
const Preset *presetNamed(const QList<Preset> &presets, const QString &name);

// Reads and writes the presets in libcups's files: one file for all users and one of the user, which takes
// precedence for options in both. Each call reads the files, and blocks; calls may be made on any thread, and
// from several processes at once. Changes are made under a lock file next to the file, and replace the file
// atomically; all other lines are preserved byte for byte. Other programs do not use the lock, so changes
// that they make meanwhile are detected before and after writing, and kept.
class PresetStore
{
public:
    struct Files
    {
        QString allUsers; // the file of all users; may be empty
        QString users;
        bool writesForAllUsers = false; // new presets are written there, as for root
        // of a new file, as in libcups; the mode of the user's file is reduced by the umask
        unsigned mode = 0644;
    };
    // The paths that libcups uses.
    static Files filesOfCups();
    // The file with the last-used settings of each queue; readable only by the user.
    static Files filesOfLastUsed();

    explicit PresetStore(Files files = filesOfCups()) : m_files(std::move(files)) {}

    // The names of presets by queue, in lower case, since libcups ignores letter case.
    using Names = QMap<QString, QStringList>;
    std::optional<Names> names(PrintError *error) const;
    // In the order of the files. Null with an error if an existing file cannot be read.
    std::optional<QList<Preset>> list(const QString &queue, PrintError *error) const;
    // Adds or replaces a preset. A preset without options is deleted.
    bool save(const QString &queue, const Preset &preset, PrintError *error) const;
    // False if there is no such preset, or another one whose name differs from the new name at most in case.
    bool rename(const QString &queue, const QString &from, const QString &to, PrintError *error) const;
    bool remove(const QString &queue, const QString &name, PrintError *error) const;

    // The localised reason why a name is not valid for a preset; null if it is valid.
    static QString nameProblem(const QString &name);

private:
    std::optional<QByteArray> contents(PrintError *error) const;
    // Creates new content from the old; null with an error if the change is not possible.
    using Change = std::function<std::optional<QByteArray>(const QByteArray &content, PrintError *error)>;
    bool change(const QString &path, const Change &change, PrintError *error) const;
    // The file that contains a preset, or the file for new presets.
    QString fileOf(const QString &queue, const QString &name, PrintError *error) const;

    Files m_files;
};

} // namespace host
