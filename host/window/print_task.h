// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace host {

class DialogSession;
struct PrintError;

// What the window is opened for. A value.
struct PrintTask
{
    QStringList files;             // "-" is the standard input
    QString title;                 // of the job; the first file's name when empty
    QString documentName;          // of the only document, where its file's name says nothing
    QString printer;               // destination name; empty for the one used last, else the default
    QString ppdFile;               // shows the options of this PPD instead of the queue's
    QString firstPage;             // name of the page to open at; empty for the first
    bool printerMayBeGone = false; // a printer that is not there is as good as none
    // Runs once on the first session, with its first page in place: settings of the command line. Later
    // sessions get them with whatever else has been chosen.
    std::function<bool(DialogSession *, PrintError *)> prepare;
    // Runs once on the first session, before any page: where another program wants the dialog to begin.
    std::function<void(DialogSession *)> begin;
    // The settings are the answer: another program has the document, and nothing is printed here.
    bool settingsOnly = false;
    QString acceptLabel; // of the button that prints; empty for the usual one

    // What these of its files are called, for the user. Empty for the standard input.
    QString namesOf(const QStringList &paths) const;
};

} // namespace host
