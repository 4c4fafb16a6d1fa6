// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>
#include <QByteArrayView>

struct stat;

namespace host {

// A file that takes the place of another one whole or not at all. It is made in the same folder and removed
// again with this object unless it has taken its place. Every operation blocks, and leaves the reason for a
// failure in errno.
class NewFile
{
public:
    // Gets the permissions and, where that is allowed, the owner of `earlier`, the file that it replaces.
    // Null for no such file: it then gets `mode`, less the process's umask.
    NewFile(const QByteArray &path, mode_t mode, const struct stat *earlier);
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    // Sets the permissions whatever the umask is.
    void setMode(mode_t mode);
    // Writes all of the content, to the disk.
    bool write(QByteArrayView content);
    // A link that has the name meanwhile is replaced, not followed.
    bool takePlace();

private:
    QByteArray m_path;
    QByteArray m_name;
    platform::UniqueFd m_fd; // none where it could not be made, and after takePlace()
};

} // namespace host
