// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

namespace host {

// The job option for the size of the pages in percent. Filters of the print system ignore it for PDF and
// apply it to images in a different way. Documents are therefore scaled before they are sent, and the option
// is not sent.
extern const QString naturalScalingName; // natural-scaling

// Settings that affect the pages of a document. Contains only page layout options, since they become
// command-line arguments, which every user of the machine can read. A value.
struct PageSettings
{
    QList<std::pair<QString, QString>> options; // job options
    PaperSize paper;                            // without dimensions, A4 without margins is used
    bool isMonochrome = false;
    int percent = naturalSize;          // size of the pages in percent; the size of the paper does not change
    bool isImageScaledByServer = false; // with a default of the queue, unless images are sent as PDF

    static constexpr int naturalSize = 100;
    bool isScaled() const { return percent != naturalSize; }
    bool areImagesSentAsPdf() const { return isScaled() || isImageScaledByServer; }

    bool operator==(const PageSettings &other) const;
    // The options as filters receive them.
    QString optionText() const;
    // A PPD that contains only this paper, for filters.
    QByteArray ppd() const;
};

} // namespace host
