// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/new_file.h"

#include "platform/descriptor_io.h"

#include <QUuid>

namespace host {

NewFile::NewFile(const QByteArray &path, mode_t mode, const struct stat *earlier)
    : m_path(path), m_name(path + '.' + QUuid::createUuid().toByteArray(QUuid::Id128)),
      m_fd(::open(m_name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, earlier ? 0600 : mode))
{
    if (!m_fd || !earlier)
        return;
    // A file whose owner changes loses its special permission bits.
    const bool isTheirs = ::fchown(m_fd.get(), earlier->st_uid, earlier->st_gid) == 0;
    setMode(earlier->st_mode & (isTheirs ? 07777 : 0777));
}

NewFile::~NewFile()
{
    if (m_fd)
        ::unlink(m_name.constData());
}

void NewFile::setMode(mode_t mode)
{
    if (m_fd)
        (void)::fchmod(m_fd.get(), mode);
}

bool NewFile::write(QByteArrayView content)
{
    return m_fd && platform::writeAll(m_fd.get(), {content.data(), static_cast<size_t>(content.size())}) &&
           ::fsync(m_fd.get()) == 0;
}

bool NewFile::takePlace()
{
    if (::rename(m_name.constData(), m_path.constData()) != 0)
        return false;
    m_fd.reset();
    return true;
}

} // namespace host
