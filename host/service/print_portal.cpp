// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/print_portal.h"

#include "host/service/portal_call.h"
#include "host/service/portal_settings.h"

#include <QDBusConnection>

namespace host {

namespace {

constexpr qsizetype longestText = 1000; // characters of a title or a name

QJsonObject requestOf(const QString &kind, const QString &parentWindow, const QString &title,
                      const QVariantMap &options)
{
    QJsonObject request{{QStringLiteral("kind"), kind},
                        {QStringLiteral("parent"), parentWindow.left(longestText)},
                        {QStringLiteral("title"), title.left(longestText)},
                        {QStringLiteral("modal"), options.value(QStringLiteral("modal"), true).toBool()}};
    const QString label = options.value(QStringLiteral("accept_label")).toString();
    if (!label.isEmpty())
        request.insert(QStringLiteral("acceptLabel"), label.left(longestText));
    return request;
}

} // namespace

PortalCall *PrintPortal::newCall(const QString &appId)
{
    setDelayedReply(true);
    m_life.touch();
    const QString client = QStringLiteral("application:") + appId.left(longestText);
    const QString refusal = m_life.refusal(client);
    auto *call = new PortalCall(m_life, client, connection(), message());
    if (refusal.isNull())
        return call;
    call->refuse(refusal);
    return nullptr;
}

uint PrintPortal::PreparePrint(const QDBusObjectPath &handle, const QString &app_id,
                               const QString &parent_window, const QString &title,
                               const QVariantMap &settings, const QVariantMap &page_setup,
                               const QVariantMap &options, QVariantMap &)
{
    PortalCall *call = newCall(app_id);
    if (!call)
        return 0;
    QJsonObject request = requestOf(QStringLiteral("choose"), parent_window, title, options);
    request.insert(QStringLiteral("settings"), plainValues(settings));
    request.insert(QStringLiteral("pageSetup"), plainValues(page_setup));
    request.insert(QStringLiteral("abilities"), applicationAbilities(options));
    call->run(handle.path(), request, {}, false, [this, app_id](const QJsonObject &answer) {
        const auto part = [&answer](const char *name) {
            return answer.value(QLatin1String(name)).toObject();
        };
        return QVariantMap{{QStringLiteral("settings"), part("settings").toVariantMap()},
                           {QStringLiteral("page-setup"), part("pageSetup").toVariantMap()},
                           {QStringLiteral("token"), m_tokens.add(app_id, part("job"))}};
    });
    return 0;
}

uint PrintPortal::Print(const QDBusObjectPath &handle, const QString &app_id, const QString &parent_window,
                        const QString &title, const QDBusUnixFileDescriptor &fd, const QVariantMap &options,
                        QVariantMap &)
{
    PortalCall *call = newCall(app_id);
    if (!call) // the token remains valid
        return 0;
    platform::UniqueFd document = platform::UniqueFd::duplicate(fd.fileDescriptor());
    const bool isTaken = connection().objectRegisteredAt(handle.path());
    if (!document || isTaken) {
        call->refuse(document ? QStringLiteral("There is a request already at %1.").arg(handle.path())
                              : QStringLiteral("There is no document."));
        return 0;
    }
    const auto job = m_tokens.take(options.value(QStringLiteral("token")).toUInt(), app_id);
    QJsonObject request =
        requestOf(job ? QStringLiteral("submit") : QStringLiteral("print"), parent_window, title, options);
    if (job)
        request.insert(QStringLiteral("job"), *job);
    call->run(handle.path(), request, std::move(document), true,
              [](const QJsonObject &) { return QVariantMap(); });
    return 0;
}

} // namespace host
