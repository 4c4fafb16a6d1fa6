// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>

// Why a client could not be made; also keys of the string table.
extern const QString QVSNMPUnknownError;         // "SNMPUnknownError", for callers, never given here
extern const QString QVSNMPCannotConnect;        // "SNMPCannotConnect", the host has no address
extern const QString QVSNMPArchitectureMismatch; // "SNMPArchMismatch", no usable net-snmp, or no session

using SnmpOid = unsigned long; // net-snmp's oid

struct SnmpSession;

// Reads single values from a printer with SNMP version 2c, community "public". net-snmp is opened at run time
// when the first client is made and closed when the last one goes; it reads no configuration. Owned by
// whoever asks; main thread only. A request returns when it is done, after up to 3 seconds (1 second, two
// retries); it runs on a worker thread where the caller's thread has a platform::Waiter. Null (an invalid
// QVariant) is every failure: time-out, an error status, a type that is not read, a user who did not wait.
class QVSNMP_M880
{
public:
    // True when the library can be used; counts up also when not, and a later call is then told true.
    static bool loadLibrary();
    // Counts down, and closes the library at 0.
    static void unloadLibrary();
    // File names of the library, tried in order until one opens; an empty list stands for the library of the
    // version compiled in, which is the default. For the next load from 0.
    static void setLibraryNames(const QList<QByteArray> &names);
    // For diagnosis: the load count, whether a library is open, and the nine entry points as they stand.
    struct LibraryState
    {
        quint32 libraryLoaded;
        bool isOpen;
        std::array<quintptr, 9> entryPoints;
    };
    static LibraryState libraryState();

    // Opens a session to a host name, Bonjour name or address. Null with one of the identifiers above in
    // `error` (which may be null, and is left alone on success); the load count then keeps its increment.
    static std::unique_ptr<QVSNMP_M880> initWithHostAndReturnError(const QString &host, QString *error);
    // Counts the library down. Does not close the session: closeSession() comes first.
    ~QVSNMP_M880();
    QVSNMP_M880(const QVSNMP_M880 &) = delete;
    QVSNMP_M880 &operator=(const QVSNMP_M880 &) = delete;

    QVariant sendRequestWithSize(const SnmpOid *oid, size_t size);
    // One request after the other for `count` rows at most, up to the first that gives null. The last element
    // of `oid` is counted up with each row. Empty strings are left out. Null instead of an empty list, and
    // when the user has given up before the end.
    std::optional<QVariantList> sendBulkRequestWithSizeAndCount(SnmpOid *oid, size_t size, quint32 count);
    // The row (last element of its OID) of each value of the latest column read.
    const QList<quint32> &rowsOfLastColumn() const { return m_rowsOfLastColumn; }

    // Takes `charSet` from what the printer says of its current localisation; unchanged when it does not say.
    void determineDefaultCharsetForPrinter();
    // The encoding of strings, as in string_encoding.h; ASCII at first.
    quint32 charSet() const { return m_charSet; }
    // Whether strings come as the bytes the printer sent.
    bool returnsStringsAsData() const { return m_returnStringsAsData; }
    void setReturnsStringsAsData(bool asData) { m_returnStringsAsData = asData; }
    // errno of the session's last failed system call; 0 without a session, and while a request that was given
    // up on runs on it.
    qint32 lastError() const;
    // Call once, as the last thing before the client goes. A request that was given up on ends first.
    void closeSession();

private:
    explicit QVSNMP_M880(std::shared_ptr<SnmpSession> session);
    // Whether requests may be made on the session: not while one that was given up on runs on it.
    bool isIdle() const;

    std::shared_ptr<SnmpSession> m_theSession;
    qint32 m_lastError = 0;
    quint32 m_charSet;
    bool m_returnStringsAsData = false;
    QList<quint32> m_rowsOfLastColumn;
};
