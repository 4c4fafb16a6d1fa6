// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "platform/unique_fd.h"

#include <QObject>

namespace host {

// Opens the document that another program has handed over as the descriptor `given`, for reading from its
// beginning. A file is not copied: it stays the other program's, and takes no space of the user's. What can
// be read once only is copied into the cache folder, or /var/tmp, and may have 256 MB. Blocks for at most ten
// minutes. None with an error, a sentence about "it", when the document is empty, larger than 2 GB or not
// readable.
platform::UniqueFd openHandedDocument(const platform::UniqueFd &given, PrintError *error);

// Tells when a document is written to, which stays its application's: the user has then seen another one than
// would be printed. Writes through memory that an application shares with its file are not noticed.
class DocumentWatch : public QObject
{
    Q_OBJECT
public:
    // `document` is a descriptor, which is borrowed; -1 for none.
    explicit DocumentWatch(int document);

Q_SIGNALS:
    // Comes once.
    void changed();

private:
    platform::UniqueFd m_events;
};

} // namespace host
