// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/notification_center.h"

#include <QTest>

using platform::Notification;
using platform::NotificationCenter;
using namespace Qt::StringLiterals;

class NotificationCenterTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void deliversByNameAndSenderInOrder();
    void changesDuringDelivery();
    void destroyedObserverAndSender();
    void centreDestroyedDuringDelivery();

private:
    // A handler that appends a letter to the log.
    NotificationCenter::Handler note(char letter)
    {
        return [this, letter](const Notification &) { m_log += letter; };
    }
    QByteArray takeLog() { return std::exchange(m_log, {}); }

    QByteArray m_log;
    const QString m_name = u"ColorType"_s;
};

void NotificationCenterTest::deliversByNameAndSenderInOrder()
{
    NotificationCenter center;
    QObject observer;
    QObject sender;
    center.addObserver(&observer, m_name, note('a'));
    center.addObserver(&observer, m_name, note('b'), &sender);
    center.addObserver(&observer, u"Other"_s, note('c'));
    center.addObserver(&observer, m_name, note('a'));
    center.postNotification(m_name, &sender);
    QCOMPARE(takeLog(), "aba");
    center.postNotification(m_name, nullptr);
    QCOMPARE(takeLog(), "aa");
}

void NotificationCenterTest::changesDuringDelivery()
{
    NotificationCenter center;
    QObject first;
    QObject second;
    center.addObserver(&first, m_name, [&](const Notification &) {
        m_log += 'f';
        center.addObserver(&second, m_name, note('n'));
        if (m_log.size() > 1) {
            center.removeObserver(&second);
            center.removeObserver(&first);
        }
    });
    center.addObserver(&first, m_name, note('g'));
    center.addObserver(&second, m_name, note('s'));
    center.postNotification(m_name, nullptr);
    QCOMPARE(takeLog(), "fgs");
    m_log = "-";
    center.postNotification(m_name, nullptr);
    QCOMPARE(takeLog(), "-f");
    QCOMPARE(center.registrationCount(&first) + center.registrationCount(&second), 0);
    center.removeObserver(&first);
}

void NotificationCenterTest::destroyedObserverAndSender()
{
    NotificationCenter center;
    QObject observer;
    auto doomed = std::make_unique<QObject>();
    auto sender = std::make_unique<QObject>();
    center.addObserver(&observer, m_name, [&](const Notification &) { doomed.reset(); });
    center.addObserver(doomed.get(), m_name, note('d'));
    center.addObserver(&observer, m_name, note('o'), sender.get());
    sender.reset(); // a registration for a destroyed sender does not become one for any sender
    center.postNotification(m_name, nullptr);
    center.postNotification(m_name, &observer);
    QCOMPARE(takeLog(), "");
}

void NotificationCenterTest::centreDestroyedDuringDelivery()
{
    auto center = std::make_unique<NotificationCenter>();
    QObject observer;
    center->addObserver(&observer, m_name, [&](const Notification &) {
        m_log += 'x';
        center.reset();
    });
    center->addObserver(&observer, m_name, note('y'));
    center->postNotification(m_name, nullptr);
    QCOMPARE(takeLog(), "x");
}

QTEST_GUILESS_MAIN(NotificationCenterTest)
#include "notification_center_test.moc"
