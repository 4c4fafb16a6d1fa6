// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/waiting/dialog_waiter.h"
#include "platform/text_field.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace host;

class DialogWaiterTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void keepsInputFromTheDialog();
    void givesUp_data();
    void givesUp();
    void tabLeadsToTheWayOut();
    void nothingIsCommittedMeanwhile_data();
    void nothingIsCommittedMeanwhile();
    void startsAfreshWithTheNextActivity();
    void manyShortCallsAreOneLongWait();
    void questionGetsItsInput();
    void goesOnItsOwnThread();

private:
    // Waits for `m_release`, while `meanwhile` runs in the event loop.
    bool waitWhile(const std::function<void()> &meanwhile);

    std::unique_ptr<QDialog> m_dialog;
    QLineEdit *m_field = nullptr;
    QPushButton *m_giveUp = nullptr;
    std::shared_ptr<DialogWaiter> m_waiter;
    std::shared_ptr<QSemaphore> m_release;
};

void DialogWaiterTest::init()
{
    m_dialog = std::make_unique<QDialog>();
    m_field = new QLineEdit(m_dialog.get());
    m_giveUp = new QPushButton(QStringLiteral("Do not wait"), m_dialog.get());
    m_giveUp->move(0, 40);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get())); // only then focus events are delivered
    m_field->setFocus();
    m_waiter = std::make_shared<DialogWaiter>(m_dialog.get());
    m_waiter->setOpenParts({m_giveUp});
    connect(m_giveUp, &QPushButton::clicked, m_waiter.get(), &DialogWaiter::giveUp);
    m_release = std::make_shared<QSemaphore>();
}

void DialogWaiterTest::cleanup()
{
    m_release->release(10);
    QTRY_VERIFY(!platform::Background::isUnderWay());
}

bool DialogWaiterTest::waitWhile(const std::function<void()> &meanwhile)
{
    const platform::Waiter::Scope scope(m_waiter);
    QTimer::singleShot(0, m_dialog.get(), meanwhile);
    return platform::Background::call([release = m_release] { release->acquire(); });
}

void DialogWaiterTest::keepsInputFromTheDialog()
{
    QSignalSpy noticed(m_waiter.get(), &DialogWaiter::waitingNoticed);
    QVERIFY(waitWhile([&] {
        QTest::keyClick(m_field, Qt::Key_X);
        QTest::keyClick(m_dialog.get(), Qt::Key_Return);
        QVERIFY(!noticed.isEmpty() || noticed.wait());
        m_release->release();
    }));
    QVERIFY(m_field->text().isEmpty());
    QVERIFY(m_dialog->isVisible());
    QTest::keyClick(m_field, Qt::Key_X);
    QCOMPARE(m_field->text(), QStringLiteral("x"));
}

void DialogWaiterTest::givesUp_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("escape") << 1;
    QTest::newRow("close") << 2;
}

void DialogWaiterTest::givesUp()
{
    QFETCH(int, way);
    QVERIFY(!waitWhile([&] {
        if (way == 0)
            QTest::mouseClick(m_giveUp, Qt::LeftButton);
        else if (way == 1)
            QTest::keyClick(m_field, Qt::Key_Escape);
        else
            m_dialog->close();
    }));
    QCOMPARE(m_dialog->isVisible(), way != 2);
}

void DialogWaiterTest::tabLeadsToTheWayOut()
{
    QList<QWidget *> way;
    QVERIFY(!waitWhile([&] {
        for (const auto &[key, modifiers] : {std::pair(Qt::Key_Tab, Qt::NoModifier),
                                             {Qt::Key_Tab, Qt::ShiftModifier},
                                             {Qt::Key_Space, Qt::NoModifier},
                                             {Qt::Key_Tab, Qt::NoModifier}}) {
            QTest::keyClick(m_dialog->focusWidget(), key, modifiers);
            way.append(m_dialog->focusWidget());
        }
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Space);
        m_waiter->giveUp(); // whatever has the focus
    }));
    QCOMPARE(way, QList<QWidget *>(4, m_giveUp));
    QVERIFY(m_field->text().isEmpty());
    QTRY_COMPARE(m_dialog->focusWidget(), m_field); // where the user was
}

void DialogWaiterTest::nothingIsCommittedMeanwhile_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("tab") << false;
    QTest::newRow("click") << true;
}

// While a panel waits, the end of an edit would be delivered in the middle of its work.
void DialogWaiterTest::nothingIsCommittedMeanwhile()
{
    QFETCH(const bool, byMouse);
    platform::TextField edited(m_dialog.get());
    edited.move(0, 80);
    edited.show();
    edited.setFocus();
    QSignalSpy committed(&edited, &platform::TextField::stringValueCommitted);
    QSignalSpy finished(&edited, &QLineEdit::editingFinished);
    QTest::keyClicks(&edited, QStringLiteral("12"));
    m_waiter->beginActivity();
    QVERIFY(waitWhile([&] {
        if (byMouse)
            QTest::mouseClick(m_field, Qt::LeftButton);
        else
            QTest::keyClick(&edited, Qt::Key_Tab);
        QVERIFY(!edited.hasFocus());
        m_release->release();
    }));
    QVERIFY(waitWhile([&] { m_release->release(); })); // the panel continues
    QCOMPARE(committed.count() + finished.count(), 0);
    m_waiter->endActivity();
    QCoreApplication::processEvents();
    QCOMPARE(committed.count(), byMouse ? 1 : 0);
    QCOMPARE(edited.hasFocus(), !byMouse);
    QTest::keyClick(&edited, Qt::Key_Return);
    QCOMPARE(committed.count(), 1);
    QCOMPARE(edited.stringValue(), QStringLiteral("12"));
}

void DialogWaiterTest::startsAfreshWithTheNextActivity()
{
    m_waiter->beginActivity();
    QVERIFY(!waitWhile([&] { m_waiter->giveUp(); }));
    QVERIFY(m_waiter->isGivenUp());
    m_waiter->endActivity();
    m_release->release();
    m_waiter->beginActivity();
    QVERIFY(waitWhile([&] { m_release->release(); }));
    m_waiter->endActivity();
}

void DialogWaiterTest::manyShortCallsAreOneLongWait()
{
    QSignalSpy noticed(m_waiter.get(), &DialogWaiter::waitingNoticed);
    const platform::Waiter::Scope scope(m_waiter);
    m_waiter->beginActivity();
    for (int i = 0; i < 6; ++i)
        platform::Background::call([release = m_release] { release->tryAcquire(1, 40); });
    m_waiter->endActivity();
    QCOMPARE(noticed.count(), 1);
}

void DialogWaiterTest::questionGetsItsInput()
{
    QDialog question(m_dialog.get());
    QLineEdit name(&question);
    QVERIFY(waitWhile([&] {
        question.open();
        name.setFocus();
        QTest::keyClick(&name, Qt::Key_X);
        QTest::keyClick(&question, Qt::Key_Escape);
        m_release->release();
    }));
    QCOMPARE(name.text(), QStringLiteral("x"));
    QVERIFY(!question.isVisible());
}

// Does not wait for the abandoned work on its thread.
void DialogWaiterTest::goesOnItsOwnThread()
{
    QVERIFY(!waitWhile([this] { m_waiter->giveUp(); }));
    const QPointer<DialogWaiter> waiter = m_waiter.get();
    m_waiter.reset();
    QVERIFY(platform::Background::isUnderWay());
    QVERIFY(!waiter);
}

QTEST_MAIN(DialogWaiterTest)
#include "dialog_waiter_test.moc"
