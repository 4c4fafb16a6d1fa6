// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/dialog_process.h"
#include "host/service/service_life.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace host {

// One call of the portal and the dialog it opens: answers the call once, and is on the bus under the call's
// handle until then, so that the portal can take it back. A dialog without a document closes, too, when the
// application or the portal has left the bus. Deletes itself when the dialog is gone.
class PortalCall : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")
public:
    // What a call results in when the dialog was accepted.
    using Results = std::function<QVariantMap(const QJsonObject &answer)>;

    // `client` is the application as ServiceLife counts it.
    PortalCall(ServiceLife &life, const QString &client, const QDBusConnection &bus,
               const QDBusMessage &message);

    // `handle` is where the request is exported. `isJob` means that there is a document: the request can be
    // forgotten, the work goes on.
    void run(const QString &handle, const QJsonObject &request, platform::UniqueFd document, bool isJob,
             const Results &results);
    // Answers without a dialog; `reason` goes to the application.
    void refuse(const QString &reason);

public Q_SLOTS:
    Q_SCRIPTABLE void Close();

private:
    void watchCallers(const QString &handle);
    void callerHasGone();
    void reply(uint response, const QVariantMap &results = {});

    ServiceLife::Use m_use;
    QDBusConnection m_bus;
    QDBusMessage m_message;
    QString m_handle; // empty when nothing is exported
    DialogProcess m_dialog;
    QDBusServiceWatcher m_callers;
    bool m_isJob = false;
    bool m_replied = false;
};

} // namespace host
