// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace host {

// A new, empty folder that only this user can access, in the folder for temporary files. Removed with all its
// contents when the object is destroyed, which may take long.
class PrivateFolder
{
public:
    // isNull(), with errno, if it cannot be created.
    PrivateFolder();
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;

    bool isNull() const { return m_path.isNull(); }
    // An absolute path.
    const QByteArray &path() const { return m_path; }

private:
    QByteArray m_path;
};

} // namespace host
