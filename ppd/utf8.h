// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringDecoder>

// A text of a PPD record. Null if there is none, or if its bytes are not valid UTF-8.
inline QString stringFromUtf8(QByteArrayView bytes)
{
    if (bytes.isNull())
        return {};
    using Flag = QStringConverter::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return {};
    return text.isNull() ? QStringLiteral("") : text;
}
