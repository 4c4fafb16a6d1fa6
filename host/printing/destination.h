// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace host {

// A queue of the print server, or a preset of one ("queue/instance"). A value.
struct Destination
{
    QString queue;
    QString instance; // empty for the queue itself
    QString info;     // what people call the printer; may be empty
    QString location;
    QString makeAndModel;
    QString deviceUri;
    QString printerUri; // the queue's own address on the print server
    bool isDefault = false;
    bool isStateKnown = false; // whether the two that follow come from the print server
    bool accepting = true;
    bool stopped = false;
    bool isOnNetwork = false;             // announces itself there, and has a queue only while it is used
    QMap<QString, QString> options;       // the user's and the queue's own settings, as libcups gives them
    QStringList serverOptions;            // the names of those that come from the print server alone
    QMap<QString, QString> queueDefaults; // job options that the print server adds by itself
    QString optionsProblem; // why the user's own settings could not be read, localised; null when they could

    QString name() const { return instance.isEmpty() ? queue : queue + QLatin1Char('/') + instance; }
    // For lists: the printer's everyday name, and the preset where it is one.
    QString displayName() const;
    // Whether both are the same printer in the network, by the names that it announces there.
    bool isSameDevice(const Destination &other) const;
    // The same where the print server does not tell how it is.
    Destination withoutState() const;
    // The queue that opens this dialog: for other programs to print to, never for the dialog itself.
    bool opensDialog() const { return deviceUri.startsWith(QLatin1String("kelmar-dialog:")); }
};

// The queue and the instance of "queue/instance".
std::pair<QString, QString> splitDestinationName(const QString &name);

// Which printers were used lately, kept in the user's settings file. Every call reads or writes it, and may
// block as long as the file system does.
class RememberedPrinter
{
public:
    QString name() const;       // the last one; empty when there is none
    QStringList recent() const; // the last few, the latest first
    void setName(const QString &name);
};

} // namespace host

Q_DECLARE_METATYPE(host::Destination)
