// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <memory>

// An immutable dotted version number of one to three parts. The parts are compared as integers, so 1.10 is
// greater than 1.9, and 1.1 equals 1.01. Can be shared freely.
class QVVersionInfo_M880
{
public:
    // Null if the string is null or empty, or has more than three parts. A part is read up to its first
    // non-digit; a part without leading digits is 0.
    static std::shared_ptr<const QVVersionInfo_M880> versionInfoWithString(const QString &string);

    qint32 majorPart() const { return m_major; }
    qint32 minorPart() const { return m_minor; }
    qint32 otherPart() const { return m_other; }
    // Always three parts. The second and third part keep the width with which they were written: "1.01" gives
    // "1.01.0".
    const QString &stringValue() const { return m_reformatted; }
    // "v1.01.0"
    QString description() const;

    // -1, 0 or +1 if this version is older than, equal to or newer than the argument. A string must be a
    // valid version.
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

// Kernel releases that separate older dialog hosts from newer ones, for comparison with the manager's Darwin
// version.
extern const QString QVTigerDarwinVersion;       // "8.0"
extern const QString QVLeopardDarwinVersion;     // "9.0"
extern const QString QVSnowLeopardDarwinVersion; // "10.0"
