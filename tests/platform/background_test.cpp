// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/background.h"
#include "platform/exception.h"
#include "tests/support/loop_waiter.h"

#include <QObject>
#include <QSemaphore>
#include <QTest>
#include <QThread>

using namespace platform;
using namespace std::chrono_literals;

class BackgroundTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void callsStraightWithoutAWaiter();
    void keepsEventsGoingWhileItWaits();
    void dropsWhatWasGivenUp();
    void givesUpAtTheLimit_data();
    void givesUpAtTheLimit();
    void carriesExceptionsOver();
    void startsWithoutWaiting();
    void deliversThoughDeletionsComeFirst();
    void leavesAReceiverAloneThatIsGone();
};

void BackgroundTest::callsStraightWithoutAWaiter()
{
    const auto thread = callOnWorker([] { return QThread::currentThreadId(); });
    QCOMPARE(thread.value(), QThread::currentThreadId());
}

void BackgroundTest::keepsEventsGoingWhileItWaits()
{
    const Waiter::Scope scope(std::make_shared<LoopWaiter>());
    QSemaphore painted;
    QMetaObject::invokeMethod(
        this, [&] { painted.release(); }, Qt::QueuedConnection);
    const auto answer = callOnWorker([&] { return painted.tryAcquire(1, 10'000) ? 7 : 0; });
    QCOMPARE(answer.value(), 7);
}

void BackgroundTest::dropsWhatWasGivenUp()
{
    const auto waiter = std::make_shared<LoopWaiter>();
    const Waiter::Scope scope(waiter);
    const auto release = std::make_shared<QSemaphore>();
    QMetaObject::invokeMethod(
        this, [waiter] { waiter->giveUp(); }, Qt::QueuedConnection);
    const auto kept = std::make_shared<int>(0);
    QVERIFY(!callOnWorker([release, kept] {
        release->acquire();
        return *kept;
    }));
    bool started = false;
    QVERIFY(Background::isGivenUp());
    QVERIFY(!Background::call([&] { started = true; }) && !Background::call([&] { started = true; }, 1s));
    QVERIFY(!started);
    QVERIFY(Background::isUnderWay());
    release->release();
    QTRY_VERIFY(!Background::isUnderWay());
    QCOMPARE(kept.use_count(), 1);
}

void BackgroundTest::givesUpAtTheLimit_data()
{
    QTest::addColumn<bool>("hasWaiter");
    QTest::newRow("blocking") << false;
    QTest::newRow("beside a thread that waits") << true;
}

void BackgroundTest::givesUpAtTheLimit()
{
    QFETCH(bool, hasWaiter);
    const Waiter::Scope scope(hasWaiter ? std::make_shared<LoopWaiter>() : nullptr);
    const auto release = std::make_shared<QSemaphore>();
    const auto wait = [release] { return release->tryAcquire(1, 10'000); };
    QVERIFY(!callOnWorker(wait, 50ms));
    QVERIFY(Background::isUnderWay() && !Background::isGivenUp());
    release->release(2);
    QCOMPARE(callOnWorker(wait, 10s), true);
    QVERIFY_THROWS_EXCEPTION(Exception,
                             Background::call([] { throw Exception(Exception::rangeName, {}); }, 10s));
    QTRY_VERIFY(!Background::isUnderWay());
}

void BackgroundTest::carriesExceptionsOver()
{
    const Waiter::Scope scope(std::make_shared<LoopWaiter>());
    QVERIFY_THROWS_EXCEPTION(Exception, Background::call([] {
                                 throw Exception(Exception::rangeName, QStringLiteral("too far"));
                             }));
}

void BackgroundTest::startsWithoutWaiting()
{
    QObject receiver;
    int answer = 0;
    Qt::HANDLE deliveredOn = nullptr;
    startOnWorker(
        &receiver, [] { return 5; },
        [&](int result) {
            answer = result;
            deliveredOn = QThread::currentThreadId();
        });
    QCOMPARE(answer, 0);
    QTRY_COMPARE(answer, 5);
    QCOMPARE(deliveredOn, QThread::currentThreadId());
}

void BackgroundTest::deliversThoughDeletionsComeFirst()
{
    QObject receiver;
    int answer = 0;
    startOnWorker(
        &receiver, [] { return 5; }, [&](int result) { answer = result; });
    while (Background::isUnderWay()) // without processing events
        QThread::yieldCurrentThread();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(answer, 5);
}

void BackgroundTest::leavesAReceiverAloneThatIsGone()
{
    QSemaphore release;
    bool delivered = false;
    auto receiver = std::make_unique<QObject>();
    startOnWorker(
        receiver.get(),
        [&] {
            release.acquire();
            return 0;
        },
        [&](int) { delivered = true; });
    receiver.reset();
    release.release();
    QTRY_VERIFY(!Background::isUnderWay());
    QCoreApplication::processEvents();
    QVERIFY(!delivered);
}

QTEST_GUILESS_MAIN(BackgroundTest)
#include "background_test.moc"
