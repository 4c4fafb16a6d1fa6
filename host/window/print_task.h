// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace host {

class DialogSession;
struct PrintError;

// The task for which the window is opened. A value.
struct PrintTask
{
    QStringList files;             // "-" is the standard input
    QString title;                 // of the job; if empty, the name of the first file is used
    QString documentName;          // of the only document, if its file name means nothing to the user
    QString printer;               // destination name; empty for the one used last, else the default
    QString ppdFile;               // show the options of this PPD instead of the queue's
    QString firstPage;             // name of the initial page; empty for the first
    bool printerMayBeGone = false; // if `printer` does not exist, another one is opened as if it were empty
    // Called once for the first session, after its first page is shown, to apply the settings of the command
    // line. Later sessions receive these settings with all other choices.
    std::function<bool(DialogSession *, PrintError *)> prepare;
    // Called once for the first session, before any page is shown, to apply the initial settings from another
    // program.
    std::function<void(DialogSession *)> begin;
    // Only the settings are returned: another program has the document, and nothing is printed here.
    bool settingsOnly = false;
    QString acceptLabel; // of the print button; empty for the default

    // The display names of these files. Empty for the standard input.
    QString namesOf(const QStringList &paths) const;
};

} // namespace host
