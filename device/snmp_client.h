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

// Reasons why a client could not be created; also keys of the string table.
extern const QString QVSNMPUnknownError;         // "SNMPUnknownError", for callers, never set here
extern const QString QVSNMPCannotConnect;        // "SNMPCannotConnect", the host has no address
extern const QString QVSNMPArchitectureMismatch; // "SNMPArchMismatch", no usable net-snmp, or no session

using SnmpOid = unsigned long; // net-snmp's oid

struct SnmpSession;

// Reads single values from a printer with SNMP version 2c, community "public". net-snmp is loaded at run time
// when the first client is created, and unloaded with the last one; it reads no configuration. Owned by the
// caller; main thread only. A request returns when done, after up to 3 seconds (1 second, two retries); it
// runs on a worker thread if the caller's thread has a platform::Waiter. Null (an invalid QVariant) means
// failure: a time-out, an error status, an unsupported type, or a user who stopped waiting.
class QVSNMP_M880
{
public:
    // True if the library can be used. The count is incremented even on failure, and later calls then return
    // true.
    static bool loadLibrary();
    // Decrements the count, and closes the library at 0.
    static void unloadLibrary();
    // File names of the library, tried in order until one opens. An empty list, the default, means the
    // library of the version that was compiled in. Takes effect at the next load from 0.
    static void setLibraryNames(const QList<QByteArray> &names);
    // For diagnosis: the load count, whether a library is open, and the nine entry points.
    struct LibraryState
    {
        quint32 libraryLoaded;
        bool isOpen;
        std::array<quintptr, 9> entryPoints;
    };
    static LibraryState libraryState();

    // Opens a session to a host name, Bonjour name or address. On failure returns null with one of the
    // identifiers above in `error`, which may be null and is not changed on success; the load count then
    // remains incremented.
    static std::unique_ptr<QVSNMP_M880> initWithHostAndReturnError(const QString &host, QString *error);
    // Decrements the load count. Does not close the session: call closeSession() first.
    ~QVSNMP_M880();
    QVSNMP_M880(const QVSNMP_M880 &) = delete;
    QVSNMP_M880 &operator=(const QVSNMP_M880 &) = delete;

    QVariant sendRequestWithSize(const SnmpOid *oid, size_t size);
    // Sends requests one by one for at most `count` rows, up to the first that returns null. The last element
    // of `oid` is incremented with each row. Empty strings are left out. Null instead of an empty list, and
    // if the user stopped waiting before the end.
    std::optional<QVariantList> sendBulkRequestWithSizeAndCount(SnmpOid *oid, size_t size, quint32 count);
    // The row (last element of the OID) of each value of the last column that was read.
    const QList<quint32> &rowsOfLastColumn() const { return m_rowsOfLastColumn; }

    // Sets `charSet` from the printer's current localisation; not changed if the printer does not report it.
    void determineDefaultCharsetForPrinter();
    // The encoding of strings, as in string_encoding.h; initially ASCII.
    quint32 charSet() const { return m_charSet; }
    // Whether strings are returned as the bytes that the printer sent.
    bool returnsStringsAsData() const { return m_returnStringsAsData; }
    void setReturnsStringsAsData(bool asData) { m_returnStringsAsData = asData; }
    // errno of the session's last failed system call; 0 without a session, and while an abandoned request
    // runs on it.
    qint32 lastError() const;
    // Call once, immediately before destroying the client. Waits for an abandoned request.
    void closeSession();

private:
    explicit QVSNMP_M880(std::shared_ptr<SnmpSession> session);
    // Whether a request can be sent on the session: not while an abandoned request runs on it.
    bool isIdle() const;

    std::shared_ptr<SnmpSession> m_theSession;
    qint32 m_lastError = 0;
    quint32 m_charSet;
    bool m_returnStringsAsData = false;
    QList<quint32> m_rowsOfLastColumn;
};
