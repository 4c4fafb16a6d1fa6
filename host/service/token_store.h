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

// What users have chosen for documents that their applications have still to hand over, kept here because
// some of it is secret. A token names one choice; it is good once, for the application it was made for, until
// it is too old.
class TokenStore : public QObject
{
    Q_OBJECT
public:
    explicit TokenStore(std::chrono::milliseconds lifetime = std::chrono::seconds(300));

    // Never 0, and not to be guessed from others.
    uint add(const QString &appId, const QJsonObject &job);
    // Null, and the token stays good for its owner, when it is another application's.
    std::optional<QJsonObject> take(uint token, const QString &appId);
    bool isEmpty() const { return m_entries.isEmpty(); }

Q_SIGNALS:
    // The last one has been taken or has become too old.
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
