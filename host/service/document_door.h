// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/service_life.h"

#include <QByteArray>
#include <QDBusContext>
#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace host {

// The D-Bus object that opens the dialog with a document from the queue "KELMAR dialog". `life` is borrowed.
class DocumentDoor : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kelmar.Print1")
public:
    explicit DocumentDoor(ServiceLife &life) : m_life(life) {}

    static QString serviceName() { return QStringLiteral("org.kelmar.Print1"); }
    static QString objectPath() { return QStringLiteral("/org/kelmar/Print1"); }

public Q_SLOTS:
    // Answers when the dialog is visible, or when it takes longer to open than the queue can wait; the
    // service then owns the document. `title` and `options`, job options in the syntax of lp, are unvalidated
    // bytes. If the queue has to keep the job, answers one of the errors
    // org.kelmar.Print1.Error.{TooManyDialogs, NoDisplay, BadDocument, NoDialog}.
    Q_SCRIPTABLE void OpenDocument(const QDBusUnixFileDescriptor &document, const QByteArray &title,
                                   uint copies, const QByteArray &options);

private:
    ServiceLife &m_life;
};

} // namespace host
