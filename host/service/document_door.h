// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/service_life.h"

#include <QByteArray>
#include <QDBusContext>
#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace host {

// Opens the dialog with a document: the queue that applications print to hands it over here. Life is
// borrowed.
class DocumentDoor : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kelmar.Print1")
public:
    explicit DocumentDoor(ServiceLife &life) : m_life(life) {}

    static QString serviceName() { return QStringLiteral("org.kelmar.Print1"); }
    static QString objectPath() { return QStringLiteral("/org/kelmar/Print1"); }

public Q_SLOTS:
    // Answers when the dialog is visible, or when it takes longer to open than the queue can wait; then the
    // document is the service's. `title` and `options`, job options as lp takes them, are bytes that have not
    // been checked yet. Answers an error, one of org.kelmar.Print1.Error.{TooManyDialogs, NoDisplay,
    // BadDocument, NoDialog}, when the queue is to keep the job.
    Q_SCRIPTABLE void OpenDocument(const QDBusUnixFileDescriptor &document, const QByteArray &title,
                                   uint copies, const QByteArray &options);

private:
    ServiceLife &m_life;
};

} // namespace host
