// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/gzip_file.h"

#include <algorithm>
#include <climits>

#include <unistd.h>

namespace host {

GzipFile::GzipFile(int descriptor) : m_file(gzdopen(descriptor, "rb"))
{
    if (m_file)
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    else
        ::close(descriptor);
}

bool GzipFile::isCompressed() const
{
    return m_file && gzdirect(m_file.get()) == 0;
}

bool GzipFile::seek(qint64 position)
{
    m_hasFailed = false;
    return m_file && QIODevice::seek(position) && gzseek(m_file.get(), position, SEEK_SET) == position;
}

qint64 GzipFile::readData(char *data, qint64 size)
{
    const int count = gzread(m_file.get(), data, static_cast<unsigned>(std::min<qint64>(size, INT_MAX)));
    int problem = Z_OK;
    const char *words = gzerror(m_file.get(), &problem);
    // A truncated file first returns the data before its end.
    m_hasFailed = count < 0 || (count < size && problem != Z_OK && problem != Z_STREAM_END);
    if (m_hasFailed)
        setErrorString(QString::fromLocal8Bit(words));
    return m_hasFailed ? -1 : count;
}

} // namespace host
