// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// An error with a localised message for the user. A value.
struct PrintError
{
    enum class Kind {
        None,
        NoSuchPrinter,
        NoSuchPreset, // of an existing printer
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
    QString message; // localised plain text of one or two sentences

    explicit operator bool() const { return kind != Kind::None; }
    // The kind of error for scripts, such as "no-such-printer". Never localised.
    QString code() const;
};

} // namespace host
