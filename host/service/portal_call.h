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

// One call of the portal and its dialog. Answers the call once; until then it is exported on the bus under
// the call's handle, so that the portal can withdraw it. A dialog without a document also closes when the
// application or the portal leaves the bus. Deletes itself when the dialog has exited.
class PortalCall : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")
public:
    // Converts the answer of a confirmed dialog to the results of the call.
    using Results = std::function<QVariantMap(const QJsonObject &answer)>;

    // `client` identifies the application for ServiceLife.
    PortalCall(ServiceLife &life, const QString &client, const QDBusConnection &bus,
               const QDBusMessage &message);

    // `handle` is the object path of the request. `isJob` means that there is a document: withdrawing the
    // request does not stop the job.
    void run(const QString &handle, const QJsonObject &request, platform::UniqueFd document, bool isJob,
             const Results &results);
    // Answers without a dialog; `reason` is sent to the application.
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
    QString m_handle; // empty if nothing is exported
    DialogProcess m_dialog;
    QDBusServiceWatcher m_callers;
    bool m_isJob = false;
    bool m_replied = false;
};

} // namespace host
