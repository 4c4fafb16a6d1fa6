// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/print_window.h"
#include "platform/background.h"
#include "tests/support/delayed_rows.h"
#include "tests/support/heartbeat.h"
#include "tests/support/paths.h"
#include "tests/support/private_cupsd.h"
#include "tests/support/stalling_proxy.h"

#include <QPushButton>
#include <QTest>

// Milliseconds. Sanitizers make the program several times slower.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr qint64 longestGap = 1500;
constexpr qint64 longestReaction = 3000;
#else
constexpr qint64 longestGap = 100;
constexpr qint64 longestReaction = 200;
#endif

// The dialog with its bundle, and a print server behind a proxy that can delay its responses. Measures
// whether the dialog's thread remains responsive. Base class of tests.
class AnswersFixture : public QObject
{
    Q_OBJECT
protected:
    static constexpr int manyQueues = 700;

    // Starts the server with its queues in a private network. Skips the test if that is not possible.
    void startServer();
    // Ends a test: stops delaying responses, and checks the measurement.
    void checkGap();
    // Longer than the server's socket can buffer.
    void lengthenDocument();
    void open(const QString &printer = QStringLiteral("office"), host::CupsPrintSystem *system = nullptr);
    QPushButton *button(const QString &text) const;
    // Clicks, and waits for the result, which must not take noticeably long.
    template <typename Condition>
    void clickUntil(QWidget *target, Condition done, const char *what)
    {
        QVERIFY2(target && target->isVisible() && target->isEnabled(), what);
        const ThreadClock clock;
        QTest::mouseClick(target, Qt::LeftButton);
        QVERIFY2(QTest::qWaitFor(done, 10'000), what);
        DelayedRows::check(clock.milliseconds(), longestReaction, what);
    }
    template <typename W>
    W *find(const char *name = "") const
    {
        return m_window->findChild<W *>(QString::fromLatin1(name));
    }

    PrivateCupsd m_server;
    std::optional<StallingProxy> m_proxy;
    host::CupsPrintSystem m_system;
    host::CupsPrintSystem m_hasty{host::ServerPatience{10'000, 1'000, 200}}; // milliseconds
    host::CupsPrintSystem m_patient{host::ServerPatience{10'000, 4'000, 200}};
    QString m_file; // what is printed
    host::Extensions m_extensions{host::Extensions::installedBundles(buildPath("/bin"))};
    std::unique_ptr<host::PrintWindow> m_window;
    std::optional<Heartbeat> m_heart;
};
