// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <utility>

namespace host {

// A new, empty folder that only this user can access, in the folder for temporary files. Removed with all its
// contents when the object is destroyed. Movable.
class PrivateFolder
{
public:
    // isNull(), with errno, if it cannot be created.
    PrivateFolder();
    ~PrivateFolder() { remove(); }
    PrivateFolder(PrivateFolder &&other) noexcept : m_path(std::exchange(other.m_path, {})) {}
    PrivateFolder &operator=(PrivateFolder &&) = delete;

    bool isNull() const { return m_path.isNull(); }
    // An absolute path.
    const QByteArray &path() const { return m_path; }

private:
    void remove();

    QByteArray m_path;
};

} // namespace host
