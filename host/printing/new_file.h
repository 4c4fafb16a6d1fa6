// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>
#include <QByteArrayView>

struct stat;

namespace host {

// A file that replaces another one atomically. It is created in the same folder, and removed with this object
// unless it has replaced the other file. All functions block, and set errno on failure.
class NewFile
{
public:
    // Sets the permissions and, if allowed, the owner of `earlier`, the file to be replaced. If it is null,
    // the file gets `mode`, less the process's umask.
    NewFile(const QByteArray &path, mode_t mode, const struct stat *earlier);
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    // Sets the permissions regardless of the umask.
    void setMode(mode_t mode);
    // Writes all of the content to the disk.
    bool write(QByteArrayView content);
    // Replaces the other file. A link that was created under its name meanwhile is replaced, not followed.
    bool takePlace();

private:
    QByteArray m_path;
    QByteArray m_name;
    platform::UniqueFd m_fd; // none if it could not be created, and after takePlace()
};

} // namespace host
