// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/limited_process.h"
#include "host/printing/ppd_document.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace host {

// Where the programs are that make and show pages: filters of the print system, Poppler's and Ghostscript's.
// A value.
struct PageTools
{
    QStringList folders; // in the order they are searched

    static PageTools installed();
    // The path of a program; empty when it is not installed.
    QString path(const QString &program) const;
};

// What is asked for of a document's pages. Only options that say how pages are put on paper: they get onto
// command lines, which every user of the machine can read. A value.
struct PageSettings
{
    QList<std::pair<QString, QString>> options; // of the job
    PaperSize paper;                            // without measures for A4 without margins
    bool isMonochrome = false;

    bool operator==(const PageSettings &other) const;
    // As filters get them.
    QString optionText() const;
    // A PPD with nothing but this paper, for filters.
    QByteArray ppd() const;
};

// A file in memory with this content; null when there is no memory for it.
SharedFile inMemory(const QByteArray &content);
// Opens a file for reading; null with errno.
SharedFile openFile(const QString &path);

} // namespace host
