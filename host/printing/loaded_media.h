// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QList>
#include <QStringList>

namespace host {

class PpdDocument;

// The media loaded in a printer, compared with the choices of its PPD. A value.
class LoadedMedia
{
public:
    LoadedMedia() = default; // nothing is known, so nothing is missing
    // `ppd` is unchanged after the call.
    LoadedMedia(PpdDocument *ppd, const QList<LoadedTray> &trays);

    // The marked choices of size, type and tray that are not loaded, as localised sentences. Choices that
    // leave the decision to the printer, and choices that cannot be compared, are not missing.
    QStringList missing(const PpdDocument &ppd) const;

private:
    struct Tray
    {
        LoadedTray media;
        QString source; // the choices of the PPD; empty if there are none
        QString type;
    };
    QList<Tray> traysFor(const QString &source) const;

    QList<Tray> m_trays;
};

} // namespace host
