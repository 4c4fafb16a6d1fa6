// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <memory>

// An immutable dotted version number of one to three parts. Compared part by part as whole numbers, so 1.10
// is greater than 1.9, and 1.1 equals 1.01. Shared freely.
class QVVersionInfo_M880
{
public:
    // Null when the string is null or empty, or has more than three parts. A part counts up to its first
    // non-digit; one without leading digits is 0.
    static std::shared_ptr<const QVVersionInfo_M880> versionInfoWithString(const QString &string);

    qint32 majorPart() const { return m_major; }
    qint32 minorPart() const { return m_minor; }
    qint32 otherPart() const { return m_other; }
    // Always three parts, minor and other padded to the width they were written with: "1.01" gives "1.01.0".
    const QString &stringValue() const { return m_reformatted; }
    // "v1.01.0"
    QString description() const;

    // -1, 0 or +1 as this version is older, the same or newer. The string must be a valid version.
    int compare(const QVVersionInfo_M880 &other) const;
    int compare(const QString &string) const;

private:
    QVVersionInfo_M880() = default;
    bool initWithString(const QString &string);

    qint32 m_major = 0;
    qint32 m_minor = 0;
    qint32 m_other = 0;
    qint32 m_minorPrecision = 0;
    qint32 m_otherPrecision = 0;
    QString m_reformatted;
};

// Kernel releases that divide older dialog hosts from newer ones, for comparison with the manager's Darwin
// version.
extern const QString QVTigerDarwinVersion;       // "8.0"
extern const QString QVLeopardDarwinVersion;     // "9.0"
extern const QString QVSnowLeopardDarwinVersion; // "10.0"
