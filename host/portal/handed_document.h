// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "platform/unique_fd.h"

#include <QObject>

namespace host {

// Opens a document that another program has passed as the descriptor `given`, for reading from its beginning.
// A file is not copied: it belongs to the other program and uses no space of the user's. A stream is copied
// into the cache folder, or /var/tmp, up to 256 MB. Blocks for at most ten minutes. None with an error, a
// sentence about "it", if the document is empty, larger than 2 GB or not readable.
platform::UniqueFd openHandedDocument(const platform::UniqueFd &given, PrintError *error);

// Detects that a document, which still belongs to its application, is written to: the user has then seen a
// different document than would be printed. Writes through memory that an application shares with its file
// are not detected.
class DocumentWatch : public QObject
{
    Q_OBJECT
public:
    // `document` is a borrowed descriptor; -1 for none.
    explicit DocumentWatch(int document);

Q_SIGNALS:
    // Emitted once.
    void changed();

private:
    platform::UniqueFd m_events;
};

} // namespace host
