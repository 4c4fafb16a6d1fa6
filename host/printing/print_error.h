// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// Why something could not be done, in words for the person at the screen. A value.
struct PrintError
{
    enum class Kind {
        None,
        NoSuchPrinter,
        NoSuchPreset, // of a printer that is there
        NoPrinters,
        ServerAway,
        ConnectionLost,
        QueueRejecting,
        NotAuthorised,
        FileMissing,
        NoPermission,
        EmptyDocument,
        UnsupportedFormat,
        BrokenPpd,
        BadValue,
        Cancelled,
        Other
    };

    Kind kind = Kind::None;
    QString message; // localised plain text, one sentence or two

    explicit operator bool() const { return kind != Kind::None; }
    // The kind as scripts know it, such as "no-such-printer". Never localised.
    QString code() const;
};

} // namespace host
