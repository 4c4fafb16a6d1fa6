// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/string_encoding.h"

#include "device/iconv_handle.h"

#include <algorithm>
#include <array>

namespace {

struct CharacterSet
{
    qint64 mibEnum;
    StringEncoding encoding;
};

// 8 (ISO-8859-5), 2000 and 2001 (printer variants of Latin 1) and 2003 have no identifier; each uses the
// closest listed encoding.
constexpr std::array characterSets{
    CharacterSet{4, NSISOLatin1StringEncoding},        CharacterSet{5, NSISOLatin2StringEncoding},
    CharacterSet{8, NSWindowsCP1251StringEncoding},    CharacterSet{17, NSShiftJISStringEncoding},
    CharacterSet{18, NSJapaneseEUCStringEncoding},     CharacterSet{39, NSISO2022JPStringEncoding},
    CharacterSet{2000, NSISOLatin1StringEncoding},     CharacterSet{2001, NSISOLatin1StringEncoding},
    CharacterSet{2002, NSISOLatin2StringEncoding},     CharacterSet{2003, NSWindowsCP1254StringEncoding},
    CharacterSet{2250, NSWindowsCP1250StringEncoding}, CharacterSet{2251, NSWindowsCP1251StringEncoding},
    CharacterSet{2252, NSWindowsCP1252StringEncoding},
};

QString decodedAscii(QByteArrayView bytes)
{
    const bool ascii =
        std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (!ascii)
        return {};
    return bytes.isEmpty() ? QStringLiteral("") : QString::fromLatin1(bytes);
}

} // namespace

quint32 stringEncodingForCharacterSet(qint64 mibEnum)
{
    const auto *found = std::find_if(characterSets.begin(), characterSets.end(),
                                     [mibEnum](const CharacterSet &set) { return set.mibEnum == mibEnum; });
    return found == characterSets.end() ? NSASCIIStringEncoding : found->encoding;
}

const char *iconvNameOfStringEncoding(quint32 encoding)
{
    switch (encoding) {
    case NSASCIIStringEncoding:
        return "ASCII";
    case NSJapaneseEUCStringEncoding:
        return "EUC-JP";
    case NSISOLatin1StringEncoding:
        return "ISO-8859-1";
    case NSShiftJISStringEncoding:
        return "SHIFT_JIS";
    case NSISOLatin2StringEncoding:
        return "ISO-8859-2";
    case NSWindowsCP1251StringEncoding:
        return "CP1251";
    case NSWindowsCP1252StringEncoding:
        return "CP1252";
    case NSWindowsCP1254StringEncoding:
        return "CP1254";
    case NSWindowsCP1250StringEncoding:
        return "CP1250";
    case NSISO2022JPStringEncoding:
        return "ISO-2022-JP";
    default:
        return nullptr;
    }
}

QString decodedString(QByteArrayView bytes, quint32 encoding)
{
    // The common case, without opening a converter.
    if (encoding == NSASCIIStringEncoding || bytes.isEmpty())
        return decodedAscii(bytes);
    const char *name = iconvNameOfStringEncoding(encoding);
    const IconvHandle converter = name == nullptr ? nullptr : openIconv("UTF-8", name);
    if (!converter)
        return {};
    QByteArray input = bytes.toByteArray();
    QByteArray output(input.size() * 4 + 16,
                      '\0'); // no byte of these encodings takes more than three bytes of UTF-8
    char *from = input.data();
    char *to = output.data();
    auto fromLeft = static_cast<size_t>(input.size());
    auto toLeft = static_cast<size_t>(output.size());
    constexpr auto failed = static_cast<size_t>(-1);
    if (::iconv(converter.get(), &from, &fromLeft, &to, &toLeft) == failed ||
        ::iconv(converter.get(), nullptr, nullptr, &to, &toLeft) == failed)
        return {};
    return QString::fromUtf8(output.constData(), to - output.constData());
}
