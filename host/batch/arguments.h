// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// Exit codes.
enum ExitCode {
    ExitSuccess = 0,
    ExitFailure = 1,   // an error of the printer, the server or a file
    ExitUsage = 2,     // an invalid command line or value
    ExitConflict = 3,  // settings that cannot be used together
    ExitCancelled = 4, // the user closed the dialog without printing
    ExitUnknown = 5    // the job was sent, but the response was lost: it may be printed
};

// The parsed command line. A value.
struct Arguments
{
    struct Assignment
    {
        QString key;
        QString value;
        bool passOn = false; // -o: an unknown name is passed to the print system as a job option
        // The source of the value; until fetchValues() has read it, the value is the path of the file.
        enum class Source { CommandLine, File, Input, Terminal };
        Source source = Source::CommandLine;

        bool isSecret() const { return source != Source::CommandLine; }
    };

    bool help = false;
    bool version = false;
    bool batch = false;
    bool summary = false;
    bool listOptions = false;
    bool json = false;
    bool resolve = false;
    bool allowNoPassword = false; // print even if a password or a code is missing
    bool startupTime = false;
    bool presets = false;
    std::optional<QString> savePreset;
    std::optional<QString> deletePreset;
    QString printer;
    QString server; // print server of -h; empty for the default
    QString ppdFile;
    QString title;
    QString screenshot;
    QString output; // a PDF file to write instead of printing
    QString panel;
    QString colorScheme; // "light", "dark" or empty for that of the desktop
    QStringList bundles;
    QList<Assignment> assignments; // in the given order
    QStringList files;             // "-" is the standard input

    // Whether a value is read from the standard input, which is then not printed.
    bool takesValueFromInput() const;
    bool asksForPresets() const { return presets || savePreset || deletePreset; }
    bool needsWindow() const { return !batch && !summary && !listOptions && !asksForPresets(); }
};

// Null with a message if the command line is invalid. The first word is the program name. The message
// contains no values, since any of them may be a misplaced code.
std::optional<Arguments> parseArguments(const QStringList &words, QString *error);
// The text of --help.
QString commandLineHelp();
// Whether the program will run without a window; used before Qt reads the command line.
bool runsWithoutWindow(int argc, const char *const *argv);

} // namespace host
