// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace host {

// A toner or another supply of a printer. A value.
struct Supply
{
    QString name;     // as reported by the printer
    int percent = -1; // remaining, 0 to 100; -1 if the printer does not report it
    bool isLow = false;

    bool operator==(const Supply &) const = default;
};

// The media loaded in a tray of a printer. A value.
struct LoadedTray
{
    QString source;   // "media-source", such as "tray-1"; empty if the printer does not report it
    QString type;     // "media-type", such as "stationery"; empty likewise
    QString size;     // for display, such as "A4"
    double width = 0; // millimetres; 0 if not known
    double length = 0;

    bool operator==(const LoadedTray &) const = default;
};

// What a printer itself reports; a print server passes on less. A value.
struct DeviceReport
{
    QList<Supply> supplies;  // empty if the printer does not report any
    QList<Supply> paper;     // the paper left in each tray
    QList<LoadedTray> trays; // empty if not known; without empty trays
    QDateTime time;          // of the report; invalid if there is none

    bool operator==(const DeviceReport &) const = default;
};

// A queue of the print server, or a preset of one ("queue/instance"). A value.
struct Destination
{
    QString queue;
    QString instance; // empty for the queue itself
    QString info;     // the printer's description; may be empty
    QString location;
    QString makeAndModel;
    QString deviceUri;
    QString printerUri; // the URI of the queue on the print server
    bool isDefault = false;
    bool isStateKnown = false; // whether `accepting` and `stopped` come from the print server
    bool accepting = true;
    bool stopped = false;
    QString problem;         // localised problem reported by the printer; empty if there is none
    QStringList coverSheets; // values of "job-sheets" that the server offers; empty if unknown
    QList<Supply> supplies;  // reported by the printer, without waste containers
    DeviceReport report;     // of the printer itself
    int passwordLength = 0;  // the maximum for "job-password", in characters; 0 if jobs cannot have one
    QStringList passwordEncryptions; // values of "job-password-encryption" that are accepted
    bool takesAccountId = false;     // "job-account-id"
    bool takesAccountUser = false;   // "job-accounting-user-id"
    // announces itself on the network; the server has a queue for it only while it is used
    bool isOnNetwork = false;
    QMap<QString, QString> options;       // the user's and the queue's settings, as libcups returns them
    QStringList serverOptions;            // names of the options that come only from the print server
    QMap<QString, QString> queueDefaults; // job options that the print server adds to each job
    QString optionsProblem; // why the user's settings could not be read, localised; null if they could

    QString name() const { return instance.isEmpty() ? queue : queue + QLatin1Char('/') + instance; }
    // For lists: the printer's description, and the name of the preset if it is one.
    QString displayName() const;
    // Whether both are the same printer on the network, compared by the names that it announces.
    bool isSameDevice(const Destination &other) const;
    // A copy without the state, for use if the print server does not report it.
    Destination withoutState() const;
    // Whether this is the queue that opens this dialog. It is for other programs; the dialog never offers it.
    bool opensDialog() const { return deviceUri.startsWith(QLatin1String("kelmar-dialog:")); }
};

// Splits "queue/instance" into queue and instance.
std::pair<QString, QString> splitDestinationName(const QString &name);

// The recently used printers, stored in the user's settings file. Each call reads or writes the file, and may
// block as long as the file system does.
class RememberedPrinter
{
public:
    QString name() const;       // the most recent one; empty if there is none
    QStringList recent() const; // the last five, the most recent first
    void setName(const QString &name);
};

} // namespace host

Q_DECLARE_METATYPE(host::Destination)
