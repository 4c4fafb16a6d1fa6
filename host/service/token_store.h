// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <optional>

namespace host {

// Settings that users have confirmed for documents that the applications have yet to send. They are stored
// here because they may contain secrets. A token identifies one set of settings. It is valid once, for the
// application that it was issued to, until it expires.
class TokenStore : public QObject
{
    Q_OBJECT
public:
    explicit TokenStore(std::chrono::milliseconds lifetime = std::chrono::seconds(300));

    // Never 0, and not predictable.
    uint add(const QString &appId, const QJsonObject &job);
    // Null if the token belongs to another application, for which it remains valid.
    std::optional<QJsonObject> take(uint token, const QString &appId);
    bool isEmpty() const { return m_entries.isEmpty(); }

Q_SIGNALS:
    // The last token was used or has expired.
    void emptied();

private:
    struct Entry
    {
        QString appId;
        QJsonObject job;
        QDeadlineTimer deadline;
    };
    void dropOld();

    std::chrono::milliseconds m_lifetime;
    QHash<uint, Entry> m_entries;
    QTimer m_oldest;
};

} // namespace host
