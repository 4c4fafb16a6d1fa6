// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// How the program ends.
enum ExitCode {
    ExitSuccess = 0,
    ExitFailure = 1,   // the printer, the server or a file
    ExitUsage = 2,     // the command line, or a value that a setting does not take
    ExitConflict = 3,  // settings that cannot be used together
    ExitCancelled = 4, // the user closed the dialog without printing
    ExitUnknown = 5    // the job was sent, and the answer to it was lost: it may print
};

// What the command line asks for. A value.
struct Arguments
{
    struct Assignment
    {
        QString key;
        QString value;
        bool passOn = false; // -o: an unknown name is a job option for the print system
        // Where the value comes from; the file's path is the value until fetchValues() has read it.
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
    bool allowNoPassword = false; // print where a password or a code is missing
    bool startupTime = false;
    bool presets = false;
    std::optional<QString> savePreset;
    std::optional<QString> deletePreset;
    QString printer;
    QString server; // empty for the one of the environment
    QString ppdFile;
    QString title;
    QString screenshot;
    QString output; // a PDF file to write instead of printing
    QString panel;
    QString colorScheme; // "light", "dark" or empty for the desktop's
    QStringList bundles;
    QList<Assignment> assignments; // in the order given
    QStringList files;             // "-" is the standard input

    // Whether a value is read from the standard input, which then is no document.
    bool takesValueFromInput() const;
    bool asksForPresets() const { return presets || savePreset || deletePreset; }
    bool needsWindow() const { return !batch && !summary && !listOptions && !asksForPresets(); }
};

// Null with a message when the command line cannot be understood. The first word is the program's name. The
// message repeats no value: any may be a code in the wrong place.
std::optional<Arguments> parseArguments(const QStringList &words, QString *error);
// The text of --help.
QString helpText();
// Whether the program will run without a window, told before Qt reads the command line.
bool runsWithoutWindow(int argc, const char *const *argv);

} // namespace host
