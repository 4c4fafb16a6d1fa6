// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/utf8_text.h"

namespace host {

namespace {

// Number of bytes of the character that starts with this byte; 0 if it does not start a multi-byte character.
qsizetype sequenceLength(uchar lead)
{
    if (lead >= 0xf0)
        return 4;
    if (lead >= 0xe0)
        return 3;
    return lead >= 0xc0 ? 2 : 0;
}

} // namespace

qsizetype wholeCharacters(QByteArrayView utf8)
{
    qsizetype lead = utf8.size() - 1;
    while (lead >= 0 && utf8.size() - lead < 4 && (static_cast<uchar>(utf8[lead]) & 0xc0) == 0x80)
        --lead;
    const bool cut = lead >= 0 && sequenceLength(static_cast<uchar>(utf8[lead])) > utf8.size() - lead;
    return cut ? lead : utf8.size();
}

QByteArray utf8Beginning(const QString &text, qsizetype mostBytes)
{
    QByteArray utf8 = text.toUtf8();
    if (utf8.size() > mostBytes)
        utf8.truncate(wholeCharacters(QByteArrayView(utf8).first(mostBytes)));
    return utf8;
}

} // namespace host
