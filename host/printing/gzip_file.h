// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QIODevice>

#include <memory>

#include <zlib.h>

namespace host {

struct GzipCloser
{
    void operator()(gzFile file) const { gzclose(file); }
};
using GzipPointer = std::unique_ptr<gzFile_s, GzipCloser>;

// Reads a file, decompressing it if it is compressed with gzip. The size is not known in advance. If the file
// is damaged or truncated, reading fails with errorString().
class GzipFile : public QIODevice
{
public:
    // Takes ownership of the descriptor.
    explicit GzipFile(int descriptor);

    bool isCompressed() const; // known after the first read
    bool hasFailed() const { return m_hasFailed; }
    bool seek(qint64 position) override;

protected:
    qint64 readData(char *data, qint64 size) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    GzipPointer m_file;
    bool m_hasFailed = false;
};

} // namespace host
