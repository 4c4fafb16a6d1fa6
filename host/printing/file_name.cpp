// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/file_name.h"

#include <QStringDecoder>

#include <cerrno>

#include <fcntl.h>

namespace host {

namespace {

constexpr char16_t firstEscape = 0xDC80; // represents byte 0x80
constexpr char16_t lastEscape = 0xDCFF;

// A low surrogate of the range, without a preceding high surrogate.
bool isEscape(const QString &name, qsizetype i)
{
    const char16_t unit = name.at(i).unicode();
    return unit >= firstEscape && unit <= lastEscape && (i == 0 || !name.at(i - 1).isHighSurrogate());
}

} // namespace

QString fileNameFromBytes(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (!decoder.hasError() && text.toUtf8() == bytes) // without an incomplete character at the end
        return text;
    QString name;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        name += QChar(byte < 0x80 ? char16_t(byte) : char16_t(firstEscape + byte - 0x80));
    }
    return name;
}

QByteArray fileNameToBytes(const QString &name)
{
    QByteArray bytes;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (!isEscape(name, i))
            continue;
        bytes += name.mid(begin, i - begin).toUtf8();
        bytes += static_cast<char>(name.at(i).unicode() - firstEscape + 0x80);
        begin = i + 1;
    }
    return bytes + name.mid(begin).toUtf8();
}

QString readableFileName(const QString &name)
{
    QString text = name;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isEscape(text, i))
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

bool openForReading(QFile *file, const QString &name, QString *problem)
{
    const int fd = ::open(fileNameToBytes(name).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        *problem = qt_error_string(errno);
    return fd >= 0 && file->open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
}

} // namespace host
