// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

namespace host {

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

} // namespace host
