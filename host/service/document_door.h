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
    // Answers when the user can see the dialog; then the document is in its hands. `title` and `options`, job
    // options as lp takes them, are bytes since nobody has looked at them yet. Answers an error when no
    // dialog comes.
    Q_SCRIPTABLE void OpenDocument(const QDBusUnixFileDescriptor &document, const QByteArray &title,
                                   uint copies, const QByteArray &options);

private:
    ServiceLife &m_life;
};

} // namespace host
